// SPDX-License-Identifier: GPL-3.0-or-later
// The text that a component draws, glyph by glyph with the place of its ink: what is left out,
// squeezed, broken into lines or beyond an edge can be told without looking at pixels.
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <string>
#include <vector>

struct DrawnGlyph {
    int number = 0;              ///< in the typeface
    juce::Font font;             ///< as squeezed as it was drawn
    juce::Rectangle<float> ink;  ///< in the component
    juce::Rectangle<int> clip;   ///< what could be drawn on, in the component
    juce::Point<float> baseline; ///< where it begins
};

/// In the order of their drawing, blanks left out.
[[nodiscard]] std::vector<DrawnGlyph> glyphsDrawnBy(juce::Component& component);

/// Around all ink.
[[nodiscard]] juce::Rectangle<float> inkOf(const std::vector<DrawnGlyph>& glyphs);

/// What is wrong with a text that should be seen whole on one line, upright or lying, in these
/// bounds; empty when nothing is.
[[nodiscard]] std::string flawsOf(const std::vector<DrawnGlyph>& glyphs, const juce::String& text,
                                  juce::Rectangle<int> bounds);
