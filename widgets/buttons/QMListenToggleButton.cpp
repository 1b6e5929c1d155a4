// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMListenToggleButton.h"

#include "widgets/buttons/ToggleStyleRecord.h"

namespace {

/// The cabinet and the cone, in a square of side 1.
juce::Path speakerShape() {
    juce::Path shape;
    shape.startNewSubPath(0.1f, 0.38f);
    shape.lineTo(0.26f, 0.38f);
    shape.lineTo(0.46f, 0.18f);
    shape.lineTo(0.46f, 0.82f);
    shape.lineTo(0.26f, 0.62f);
    shape.lineTo(0.1f, 0.62f);
    shape.closeSubPath();
    return shape;
}

/// Two waves in front of it.
juce::Path soundShape() {
    constexpr float pi = juce::MathConstants<float>::pi;
    juce::Path shape;
    for (const float radius : {0.2f, 0.36f})
        shape.addCentredArc(0.46f, 0.5f, radius, radius, 0.0f, 0.25f * pi, 0.75f * pi, true);
    return shape;
}

} // namespace

QMListenToggleButton::QMListenToggleButton(const QMWidgetStyleRecord* style)
    : QMTrackedMultistateButtonWidget(2)
    , litColour(litColourOf(style))
    , off("SpeakerButtonIconOff.png")
    , on("SpeakerButtonIconOn.png")
    , lightOff("SpeakerButtonIconLightOff.png")
    , lightOn("SpeakerButtonIconLightOn.png") {}

void QMListenToggleButton::paint(juce::Graphics& g) {
    const bool isOn = getState() == 1;
    const bool panelIsDark = getContrastColourStrong().getBrightness() > 0.5f;
    ButtonPicture& picture = panelIsDark ? (isOn ? lightOn : lightOff) : (isOn ? on : off);
    if (picture.isValid())
        picture.draw(g, getLocalArea(), opacity());
    else
        drawSpeaker(g);
}

void QMListenToggleButton::drawSpeaker(juce::Graphics& g) const {
    const bool isOn = getState() == 1;
    const juce::Rectangle<float> area = getLocalArea().toFloat();
    const float side = juce::jmin(area.getWidth(), area.getHeight());
    const juce::AffineTransform toArea = juce::AffineTransform::scale(side).translated(
        area.getCentreX() - 0.5f * side, area.getCentreY() - 0.5f * side);
    const float strength = hasPressedLook() ? 0.7f * opacity() : opacity();
    g.setColour(
        (isOn ? getContrastColourStrong() : getContrastColourWeak()).withMultipliedAlpha(strength));
    g.fillPath(speakerShape(), toArea);
    if (isOn)
        g.setColour(litColour.withMultipliedAlpha(strength));
    else
        g.setOpacity(0.35f * strength);
    juce::Path sound = soundShape();
    sound.applyTransform(toArea);
    g.strokePath(sound, juce::PathStrokeType(0.07f * side, juce::PathStrokeType::curved,
                                             juce::PathStrokeType::rounded));
}
