// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMGraphicToggleButton.h"

#include "widgets/buttons/ButtonDrawing.h"

#include <array>
#include <cstddef>

namespace {

struct VariantLook {
    const char* picture;
    juce::Colour colour;
};

VariantLook lookOf(QMGraphicToggleButton::Variant variant) {
    static const std::array<VariantLook, 5> looks = {{
        {"QMButton_Pressed.png", juce::Colour(150, 150, 150)},
        {"QMButton_Red.png", juce::Colour(225, 60, 50)},
        {"QMButton_Blue.png", juce::Colour(70, 140, 235)},
        {"QMButton_Green.png", juce::Colour(60, 200, 80)},
        {"QMButton_Yellow.png", juce::Colour(245, 205, 60)},
    }};
    return looks[static_cast<std::size_t>(variant)];
}

} // namespace

QMGraphicToggleButton::QMGraphicToggleButton(Variant variantToUse)
    : QMTrackedMultistateButtonWidget(2)
    , variant(variantToUse)
    , up("QMButton.png")
    , pressed("QMButton_Pressed.png")
    , lit(lookOf(variantToUse).picture) {}

void QMGraphicToggleButton::setVariant(Variant newVariant) {
    if (newVariant == variant)
        return;
    variant = newVariant;
    lit = ButtonPicture(lookOf(variant).picture);
    repaint();
}

void QMGraphicToggleButton::drawFace(juce::Graphics& g) {
    const bool isOn = getState() == 1;
    ButtonPicture& picture = isOn ? lit : hasPressedLook() ? pressed : up;
    if (picture.isValid()) {
        picture.draw(g, getLocalArea(), opacity());
        return;
    }
    const juce::Colour colour = isOn ? lookOf(variant).colour : getBaseColour();
    ButtonDrawing::drawBody(g, getLocalArea().toFloat(), colour.withMultipliedAlpha(opacity()),
                            isOn || hasPressedLook());
}

void QMGraphicToggleButton::paint(juce::Graphics& g) {
    drawFace(g);
    const juce::Colour face = getState() == 1 ? lookOf(variant).colour : getBaseColour();
    g.setColour(ButtonDrawing::textColourOn(face).withMultipliedAlpha(opacity()));
    g.setFont(textFont());
    const juce::String text = itemText(getState());
    g.drawFittedText(text.isEmpty() ? getName() : text, getLocalArea().reduced(3, 1),
                     juce::Justification::centred, 1);
}
