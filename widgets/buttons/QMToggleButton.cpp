// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMToggleButton.h"

#include "widgets/buttons/LampBezel.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/statics/LabelTextColour.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float lampDiameter = 0.7f; ///< of the button's side
constexpr float unlitBrightness = 0.1f;
constexpr float textAlpha = 208.0f / 255.0f;

// Heights of the text on a button that is 55 wide.
constexpr float designSide = 55.0f;
constexpr float heightOfOneLetter = 18.0f;
constexpr float heightOfAWord = 13.0f;

} // namespace

QMToggleButton::QMToggleButton(const QMWidgetStyleRecord* style, Form formToUse)
    : QMTrackedMultistateButtonWidget(2)
    , litColour(litColourOf(style))
    , form(formToUse)
    , bezel("pushbutton.png") {}

void QMToggleButton::setPicture(const juce::Image& image) {
    bezel = ButtonPicture(image);
    repaint();
}

float QMToggleButton::side() const {
    return static_cast<float>(std::min(getWidth(), getHeight()));
}

bool QMToggleButton::drawsNameBeside() const {
    return form == Form::nameBeside && getWidth() >= getHeight() + getHeight() / 2;
}

juce::Font QMToggleButton::textFont() const {
    const float height = getName().length() == 1 ? heightOfOneLetter : heightOfAWord;
    return WidgetStyle::get().font(TypefaceStyle::plain,
                                   std::max(1.0f, side() / designSide * height));
}

int QMToggleButton::getIdealWidth() const {
    if (form == Form::nameOnLamp)
        return getHeight();
    const float text = QMTrackedMultistateButtonWidget::textFont().getStringWidthFloat(getName());
    return getHeight() + static_cast<int>(std::ceil(text)) + 8;
}

void QMToggleButton::paint(juce::Graphics& g) {
    const float s = side();
    if (s < 1.0f)
        return;
    drawLamp(g);
    if (bezel.isValid())
        bezel.draw(g, juce::Rectangle<int>(static_cast<int>(s), static_cast<int>(s)), opacity());
    else
        drawLampBezel(g, s, lampDiameter, opacity(), hasPressedLook(),
                      getState() == 1 ? litColour : juce::Colour());
    drawName(g);
}

void QMToggleButton::drawLamp(juce::Graphics& g) const {
    const float s = side();
    const float diameter = lampDiameter * s;
    const float inset = (s - diameter) / 2.0f;
    const juce::Colour colour =
        getState() == 1 ? litColour : litColour.withBrightness(unlitBrightness);
    g.setColour(colour.withMultipliedAlpha(opacity()));
    g.fillEllipse(inset, inset, diameter, diameter);
}

void QMToggleButton::drawName(juce::Graphics& g) const {
    const int s = static_cast<int>(side());
    if (drawsNameBeside()) {
        g.setColour(LabelTextColour::of(*this).withMultipliedAlpha(opacity()));
        g.setFont(QMTrackedMultistateButtonWidget::textFont());
        g.drawFittedText(getName(), getLocalBounds().withTrimmedLeft(s + 4),
                         juce::Justification::centredLeft, 1);
        return;
    }
    const juce::Colour colour = getState() == 1 ? juce::Colours::black : juce::Colours::white;
    g.setColour(colour.withAlpha(opacity() * textAlpha));
    g.setFont(textFont());
    g.drawFittedText(getName(), 0, 0, s, s, juce::Justification::centred, 2, 1.0f);
}
