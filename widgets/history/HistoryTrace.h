// SPDX-License-Identifier: GPL-3.0-or-later
// A line from left to right whose pieces differ in opacity. It is one shape, filled once: pieces
// drawn one by one would show a dot or a gap wherever two of them meet. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class HistoryTrace {
public:
    /// thickness: in pixels. What is left or right of the area may have its edge's opacity.
    HistoryTrace(juce::Colour lineColour, juce::Rectangle<float> wholeArea, float lineThickness);

    /// Draws a piece from the point before to this one; after a gap, and at first, there is none.
    /// Points come from left to right. opacity: 0 to 1.
    void lineTo(juce::Point<float> point, float opacity);

    void gap() { penIsDown = false; }

    /// Once.
    void draw(juce::Graphics& g);

private:
    void setOpacityAt(float x, juce::Colour next);

    juce::Colour colour;
    juce::Rectangle<float> area;
    float thickness;
    juce::Path path;
    juce::ColourGradient opacities;
    double lastStep = 0.0; ///< in the area's width
    juce::Colour piece;    ///< of the last piece
    float pieceReach = 0.0f;
    juce::Point<float> last;
    bool penIsDown = false;
    bool pieceIsOpen = false;
};
