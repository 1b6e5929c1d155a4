// SPDX-License-Identifier: GPL-3.0-or-later
// How deep a MessagePack document nests, found by walking its bytes with a list instead of calls,
// so that no depth harms the walker.
#pragma once

#include "presets/record/tests/support/ByteBuilder.h"

/// Whether arrays and objects nest deeper than that before the bytes end or stop making sense.
[[nodiscard]] bool nestsTooDeep(std::span<const std::byte> bytes, int deepest);
