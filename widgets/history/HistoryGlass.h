// SPDX-License-Identifier: GPL-3.0-or-later
// What histories are drawn on where they have no picture: a dark window sunk into the panel, with a
// faint grid. Sizes are pixels at magnification 1. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <vector>

/// A line across the window.
struct HistoryMark {
    float y = 0.0f;     ///< pixels
    juce::String label; ///< at its left end
};

/// seconds: how much time the width is; a line for each half of a second, or each second where
/// there would be too many.
void drawHistoryGlass(juce::Graphics& g, juce::Rectangle<int> area, float magnification,
                      const std::vector<HistoryMark>& marks, double seconds);
