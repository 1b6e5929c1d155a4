// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMTextToggleButton.h"

#include "widgets/buttons/ButtonDrawing.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/statics/LabelTextColour.h"

QMTextToggleButton::QMTextToggleButton(const QMWidgetStyleRecord* style)
    : QMTrackedMultistateButtonWidget(2)
    , litColour(litColourOf(style)) {}

void QMTextToggleButton::paint(juce::Graphics& g) {
    const bool isOn = getState() == 1;
    const juce::Colour face = isOn ? litColour.withMultipliedAlpha(opacity()) : getBaseColour();
    const juce::Colour ink =
        isOn ? ButtonDrawing::textColourOn(litColour) : LabelTextColour::of(*this);
    const juce::String text = itemText(getState());
    ButtonDrawing::drawBody(g, getLocalArea().toFloat(), face, hasPressedLook());
    g.setColour(ink.withMultipliedAlpha(opacity()));
    g.setFont(textFont());
    g.drawFittedText(text.isEmpty() ? getName() : text, getLocalArea().reduced(3, 1),
                     juce::Justification::centred, 1);
}
