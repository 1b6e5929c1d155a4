// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterLayout.h"

#include <algorithm>

namespace {

// Design units.
constexpr float endRoom = 7.0f;
constexpr float lampGap = 2.0f;

} // namespace

MeterLayout meterLayoutIn(juce::Rectangle<int> bounds, float magnification) {
    const bool vertical = bounds.getHeight() > bounds.getWidth();
    const int length = vertical ? bounds.getHeight() : bounds.getWidth();
    const int ends = std::min(juce::roundToInt(endRoom * magnification), length / 8);
    const int gap = std::min(juce::roundToInt(lampGap * magnification), ends / 2);
    juce::Rectangle<int> meter = vertical ? bounds.reduced(1, 0) : bounds.reduced(0, 1);
    juce::Rectangle<int> lamp = vertical ? meter.removeFromTop(ends) : meter.removeFromRight(ends);
    vertical ? meter.removeFromBottom(ends) : meter.removeFromLeft(ends);
    vertical ? lamp.removeFromBottom(gap) : lamp.removeFromLeft(gap);
    vertical ? lamp.removeFromTop(std::min(1, lamp.getHeight()))
             : lamp.removeFromRight(std::min(1, lamp.getWidth()));
    return {meter, lamp};
}
