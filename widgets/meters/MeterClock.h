// SPDX-License-Identifier: GPL-3.0-or-later
// The time that meters go by. Tests bring their own, so that two seconds of holding need not be
// waited for. [message thread]
#pragma once

#include <cstdint>
#include <functional>

/// Milliseconds from any moment on; never goes back.
using MeterClock = std::function<std::int64_t()>;

/// The machine's.
[[nodiscard]] MeterClock systemMeterClock();
