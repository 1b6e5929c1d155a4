// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/LampBezel.h"

#include <utility>

namespace {

juce::Path ringBetween(juce::Rectangle<float> outer, juce::Rectangle<float> inner) {
    juce::Path ring;
    ring.setUsingNonZeroWinding(false);
    ring.addEllipse(outer);
    ring.addEllipse(inner);
    return ring;
}

void drawGlow(juce::Graphics& g, const juce::Path& ring, juce::Rectangle<float> square,
              float lampDiameter, juce::Colour glow, float opacity) {
    const juce::Point<float> centre = square.getCentre();
    const float reach = square.getWidth() * 0.5f;
    juce::ColourGradient light(glow.withAlpha(0.55f * opacity), centre, glow.withAlpha(0.0f),
                               centre.translated(reach, 0.0f), true);
    light.addColour(static_cast<double>(lampDiameter), glow.withAlpha(0.55f * opacity));
    g.setGradientFill(light);
    g.fillPath(ring);
}

} // namespace

void drawLampBezel(juce::Graphics& g, float side, float lampDiameter, float opacity, bool pressed,
                   juce::Colour glow) {
    const juce::Rectangle<float> square(side, side);
    const juce::Rectangle<float> lamp =
        square.withSizeKeepingCentre(lampDiameter * side, lampDiameter * side);
    const juce::Rectangle<float> outer = square.reduced(0.03f * side);
    const float line = juce::jmax(1.0f, 0.02f * side);

    juce::Colour top(150, 150, 150);
    juce::Colour bottom(34, 34, 34);
    if (pressed)
        std::swap(top, bottom);
    const juce::Path ring = ringBetween(outer, lamp);
    g.setGradientFill(juce::ColourGradient::vertical(top.withAlpha(opacity), outer.getY(),
                                                     bottom.withAlpha(opacity), outer.getBottom()));
    g.fillPath(ring);
    if (!glow.isTransparent())
        drawGlow(g, ring, square, lampDiameter, glow, opacity);

    g.setColour(juce::Colours::black.withAlpha(0.7f * opacity));
    g.drawEllipse(outer, line);
    g.drawEllipse(lamp, line);
    // A reflection in the upper part of the lamp, or the shade of the finger on it.
    if (pressed) {
        g.setColour(juce::Colours::black.withAlpha(0.2f * opacity));
        g.fillEllipse(lamp);
    } else {
        const juce::Rectangle<float> shine =
            lamp.reduced(0.17f * side, 0.0f).withHeight(0.2f * side).translated(0.0f, 0.03f * side);
        g.setGradientFill(juce::ColourGradient::vertical(
            juce::Colours::white.withAlpha(0.3f * opacity), shine.getY(),
            juce::Colours::white.withAlpha(0.0f), shine.getBottom()));
        g.fillEllipse(shine);
    }
}
