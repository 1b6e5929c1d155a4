// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMHorizontalFaderWidget.h"

namespace {

constexpr double fineFactor = 0.3;
constexpr float disabledOpacity = 0.5f;

} // namespace

// The cap's image is that of upright faders; this one's is drawn.
QMHorizontalFaderWidget::QMHorizontalFaderWidget() = default;

void QMHorizontalFaderWidget::setAccentColour(juce::Colour colour) {
    accentColour = colour;
    repaint();
}

double QMHorizontalFaderWidget::travelOf(juce::Point<int> movement, bool fine) const {
    return movement.x * (fine ? fineFactor : 1.0) / getTrackLength();
}

void QMHorizontalFaderWidget::resized() {
    drawing.setArea(getLocalBounds(), getMagnification());
    repaint();
}

void QMHorizontalFaderWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    resized();
}

void QMHorizontalFaderWidget::positionChanged(float before) {
    repaint(drawing.changedArea(before, getValue()));
}

void QMHorizontalFaderWidget::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(disabledOpacity);
    drawing.setColours(getContrastColour(), accentColour);
    drawing.draw(g, getValue());
    if (!isEnabled())
        g.endTransparencyLayer();
}
