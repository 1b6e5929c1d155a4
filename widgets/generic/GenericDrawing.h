// SPDX-License-Identifier: GPL-3.0-or-later
// What the parts of the generic editor have in common when they draw themselves. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMColorSource;

namespace GenericDrawing {

/// The colours of the panel that a component is on; the library's grey where there is none.
[[nodiscard]] const QMColorSource& coloursOf(const juce::Component& component);

/// A sunken plate behind something.
void drawPlate(juce::Graphics& g, juce::Rectangle<float> area, float magnification);

/// A text in at most so many lines, centred: broken where it is too long for one, squeezed where it
/// is a little too long for them all; one that is far too long ends with dots.
[[nodiscard]] juce::GlyphArrangement fittedText(const juce::String& text, const juce::Font& font,
                                                juce::Rectangle<float> area, int lines);

} // namespace GenericDrawing
