// SPDX-License-Identifier: GPL-3.0-or-later
// What is behind the traces, in the screen's own pixels, made once a size. A display is transparent
// at its corners at most; the rows between them are kept without transparency, because copying
// takes a tenth of the time that blending does, and a history is drawn at every tick.
// [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <functional>
#include <vector>

class HistoryBackdrop {
public:
    /// Draws with its top left corner at 0, 0.
    using Painter = std::function<void(juce::Graphics&)>;

    /// Calls the painter only when there is no image of this size at this scale.
    void draw(juce::Graphics& g, juce::Rectangle<int> area, const Painter& paint);

    /// To be called when something else is to be behind the traces.
    void drop() { strips.clear(); }

private:
    /// Rows from one on.
    struct Strip {
        juce::Image image;
        int firstRow = 0;
    };

    [[nodiscard]] juce::Image wholeImage(const Painter& paint) const;
    void cut(const juce::Image& whole);

    std::vector<Strip> strips; ///< to be drawn in this order
    juce::Point<int> size;
    float scale = 0.0f;
};
