// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/ButtonDrawing.h"

#include "widgets/base/QMWidget.h"

#include <algorithm>

namespace ButtonDrawing {

void drawBody(juce::Graphics& g, juce::Rectangle<float> area, juce::Colour colour, bool pressed) {
    const juce::Rectangle<float> face = area.reduced(1.0f);
    if (face.isEmpty())
        return;
    const float corner = std::min(4.0f, 0.25f * std::min(face.getWidth(), face.getHeight()));
    const juce::Colour bright = pressed ? colour.darker(0.6f) : colour.brighter(0.15f);
    const juce::Colour dark = pressed ? colour.darker(0.2f) : colour.darker(0.4f);
    g.setGradientFill(juce::ColourGradient::vertical(bright, face.getY(), dark, face.getBottom()));
    g.fillRoundedRectangle(face, corner);
    g.setColour(juce::Colours::black.withAlpha(0.55f));
    g.drawRoundedRectangle(face, corner, 1.0f);
    // The upper edge catches the light.
    g.setColour(juce::Colours::white.withAlpha(pressed ? 0.05f : 0.18f));
    g.fillRect(juce::Rectangle<float>(face.getX() + corner, face.getY() + 0.5f,
                                      face.getWidth() - 2.0f * corner, 1.0f));
}

void drawMarks(juce::Graphics& g, const QMWidget& button) {
    constexpr float opacity = 0.25f;
    constexpr int width = 2;
    const juce::Colour selection(255, 160, 0);
    if (button.getSlotFlag(0)) {
        g.setColour(juce::Colour(button.getSlotState(0)).withAlpha(opacity));
        g.drawRect(button.getLocalArea(), width);
    }
    if (button.isSelected()) {
        g.setColour(selection.withAlpha(opacity));
        g.drawRect(button.getLocalArea(), width);
    }
}

juce::Colour textColourOn(juce::Colour face) {
    return face.contrasting(1.0f);
}

} // namespace ButtonDrawing
