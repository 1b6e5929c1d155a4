// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a tooltip: balanced, none wider than it should be, not even a file's path that has
// no blank in it. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class TooltipLayout {
public:
    /// maximumWidth is that of the text, in pixels.
    TooltipLayout(const juce::String& text, juce::Colour textColour, int maximumWidth);

    /// Where it is shown: beside the mouse, on the side with more room, within the parent's area.
    [[nodiscard]] juce::Rectangle<int> boundsAt(juce::Point<int> mouse,
                                                juce::Rectangle<int> parentArea) const;

    void draw(juce::Graphics& g, juce::Rectangle<int> area) const;

    /// With margins, in pixels.
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;

private:
    juce::TextLayout layout;
};
