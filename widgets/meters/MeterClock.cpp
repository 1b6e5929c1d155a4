// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterClock.h"

#include <juce_core/juce_core.h>

MeterClock systemMeterClock() {
    // The counter of whole milliseconds comes round every 49 days.
    return [] { return static_cast<std::int64_t>(juce::Time::getMillisecondCounterHiRes()); };
}
