// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons that are drawn have in common.
#pragma once

#include <juce_graphics/juce_graphics.h>

class QMWidget;

namespace ButtonDrawing {

/// Frames of two pixels around a button: one in the colour of slot 0's state while its flag is set,
/// one while it is selected in the layout mode. [message thread]
void drawMarks(juce::Graphics& g, const QMWidget& button);

/// The face of a button in a colour, with its edges; pressed it lies in the shade.
void drawBody(juce::Graphics& g, juce::Rectangle<float> area, juce::Colour colour, bool pressed);

/// A text colour that is legible on a face.
[[nodiscard]] juce::Colour textColourOn(juce::Colour face);

} // namespace ButtonDrawing
