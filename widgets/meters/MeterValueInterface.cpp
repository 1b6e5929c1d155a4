// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterValueInterface.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double lowest = -60.0;
constexpr double highest = 6.0;

double decibelsOf(float level) {
    return level > 0.0f ? 10.0 * std::log10(static_cast<double>(level)) : -300.0;
}

} // namespace

juce::String meterLevelText(float level) {
    const double decibels = decibelsOf(level);
    return decibels < lowest ? "-Inf dB" : juce::String(decibels, 1) + " dB";
}

double MeterValueInterface::getCurrentValue() const {
    return std::clamp(decibelsOf(data.level[0]), lowest, highest);
}

juce::AccessibilityValueInterface::AccessibleValueRange MeterValueInterface::getRange() const {
    return {{lowest, highest}, 0.1};
}
