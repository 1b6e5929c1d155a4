// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/FaderControl.h"

namespace {

constexpr double fineFactor = 0.3;
constexpr float disabledOpacity = 0.5f;

} // namespace

void FaderControl::setAccentColour(juce::Colour colour) {
    accentColour = colour;
    repaint();
}

double FaderControl::travelOfPixels(int pixels, bool fine) const {
    return pixels * (fine ? fineFactor : 1.0) / getTrackLength();
}

void FaderControl::arrange() {
    drawing.setArea(travelArea(), getMagnification());
    repaint();
}

void FaderControl::resized() {
    arrange();
}

void FaderControl::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    arrange();
}

void FaderControl::positionChanged(float before) {
    repaint(drawing.changedArea(before, getValue()));
}

void FaderControl::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(disabledOpacity);
    drawing.setColours(getContrastColour(), accentColour);
    drawing.draw(g, getValue());
    if (!isEnabled())
        g.endTransparencyLayer();
}
