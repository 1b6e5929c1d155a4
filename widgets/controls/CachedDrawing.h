// SPDX-License-Identifier: GPL-3.0-or-later
// A drawing that costs much and changes seldom, kept as an image of the screen's own pixels: a
// screen with two pixels for each of ours gets its full sharpness. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <functional>

class CachedDrawing {
public:
    /// Draws with its top left corner at 0, 0.
    using Painter = std::function<void(juce::Graphics&)>;

    /// Calls the painter only when there is no image of this size at this scale.
    void draw(juce::Graphics& g, juce::Rectangle<int> area, const Painter& paint);

    void drop() { image = {}; }

private:
    juce::Image image;
    juce::Point<int> size;
    float scale = 0.0f;
};
