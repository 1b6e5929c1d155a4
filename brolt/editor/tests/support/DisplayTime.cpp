// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the place of the library's own clock: the linker finds this one first.
#include "brolt/editor/tests/support/DisplayTime.h"

#include "widgets/meters/MeterClock.h"

std::int64_t& displayTime() {
    static std::int64_t milliseconds = 1'000'000;
    return milliseconds;
}

MeterClock systemMeterClock() {
    return [] { return displayTime(); };
}
