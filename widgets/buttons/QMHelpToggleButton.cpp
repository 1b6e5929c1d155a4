// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMHelpToggleButton.h"

#include "widgets/buttons/ButtonDrawing.h"
#include "widgets/drawing/WidgetStyle.h"

#include <algorithm>

QMHelpToggleButton::QMHelpToggleButton()
    : QMTrackedMultistateButtonWidget(2)
    , off("HelpButtonOff.png")
    , on("HelpButtonOn.png") {}

void QMHelpToggleButton::paint(juce::Graphics& g) {
    if (off.isValid() && on.isValid())
        (getState() == 1 ? on : off).draw(g, getLocalArea(), opacity());
    else
        drawQuestionMark(g);
}

void QMHelpToggleButton::drawQuestionMark(juce::Graphics& g) const {
    const float side = static_cast<float>(std::min(getWidth(), getHeight()));
    const juce::Rectangle<float> disc =
        getLocalArea().toFloat().withSizeKeepingCentre(0.9f * side - 1.0f, 0.9f * side - 1.0f);
    if (disc.isEmpty())
        return;
    const juce::Colour ink = getContrastColour().withMultipliedAlpha(opacity());
    g.setColour(ink);
    if (getState() == 1) {
        g.fillEllipse(disc);
        g.setColour(ButtonDrawing::textColourOn(ink).withMultipliedAlpha(opacity()));
    } else {
        g.drawEllipse(disc, std::max(1.0f, 0.06f * side));
    }
    if (hasPressedLook())
        g.setOpacity(0.6f * opacity());
    g.setFont(WidgetStyle::get().font(TypefaceStyle::bold, 0.7f * side));
    g.drawText("?", disc, juce::Justification::centred, false);
}
