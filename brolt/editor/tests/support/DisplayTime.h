// SPDX-License-Identifier: GPL-3.0-or-later
// The time that meters and histories go by in this program, so that an hour need not be waited for:
// it stands still until a test moves it.
#pragma once

#include <cstdint>

/// Milliseconds.
[[nodiscard]] std::int64_t& displayTime();
