// SPDX-License-Identifier: GPL-3.0-or-later
// What a settings record's bytes mean, said a second time and as plainly as can be: over an array
// of bytes, with positions instead of streams. The product's reader must answer the same for every
// input, damaged ones above all.
#pragma once

#include "presets/record/QMGenericPreset.h"
#include "presets/record/tests/support/ByteBuilder.h"

#include <optional>

/// Nothing where the bytes are to be refused.
[[nodiscard]] std::optional<QMGenericPreset> readRecordPlainly(std::span<const std::byte> bytes);

/// Everything a record holds, down to the bits of its numbers, as text that can be compared and
/// printed; "refused" for none.
[[nodiscard]] std::string describeRecord(const std::optional<QMGenericPreset>& record);
