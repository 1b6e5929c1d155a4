// SPDX-License-Identifier: GPL-3.0-or-later
// Which part of a meter's or a scale's component levels are drawn in. Both keep room at the ends
// for half of a label, and so line up when they stand side by side. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

struct MeterLayout {
    juce::Rectangle<int> meter; ///< what levels are mapped onto
    juce::Rectangle<int> lamp;  ///< beyond full scale; lights up when it was reached
};

/// The component's bounds, and pixels per design unit.
[[nodiscard]] MeterLayout meterLayoutIn(juce::Rectangle<int> bounds, float magnification);
