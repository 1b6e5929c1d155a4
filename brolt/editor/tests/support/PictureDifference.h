// SPDX-License-Identifier: GPL-3.0-or-later
// Where two pictures of an editor differ.
#pragma once

#include <juce_graphics/juce_graphics.h>

struct PictureDifference {
    int inside = 0;              ///< pixels in the places where they may
    int outside = 0;             ///< anywhere else
    juce::Rectangle<int> strays; ///< around those
};

/// The pictures must be of one size.
[[nodiscard]] PictureDifference differenceOf(const juce::Image& one, const juce::Image& other,
                                             const juce::RectangleList<int>& places);
