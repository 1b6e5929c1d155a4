// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMFaderWidget.h"

#include "widgets/images/ResourceImages.h"

namespace {

constexpr double fineFactor = 0.3;
constexpr float disabledOpacity = 0.5f;
constexpr int gapPixels = 3; ///< between the readout and the cap
/// What a readout that covers more than half of the fader is taken to need of it, design units.
constexpr float usualReadoutUnits = 34.0f;

} // namespace

QMFaderWidget::QMFaderWidget() {
    drawing.setCapImage(loadResourceImage("faderknob.png"));
}

QMFaderWidget::~QMFaderWidget() {
    setReadout(nullptr);
}

void QMFaderWidget::setAccentColour(juce::Colour colour) {
    accentColour = colour;
    repaint();
}

double QMFaderWidget::travelOf(juce::Point<int> movement, bool fine) const {
    return -movement.y * (fine ? fineFactor : 1.0) / getTrackLength();
}

// Room for the readout.

void QMFaderWidget::setReadout(QMWidget* newReadout) {
    if (QMWidget* const before = readout())
        before->removeComponentListener(this);
    QMParameterControlWidget::setReadout(newReadout);
    if (newReadout != nullptr)
        newReadout->addComponentListener(this);
    arrange();
}

void QMFaderWidget::componentMovedOrResized(juce::Component&, bool, bool) {
    arrange();
}

void QMFaderWidget::componentVisibilityChanged(juce::Component&) {
    arrange();
}

/// Pixels from the fader's upper edge.
int QMFaderWidget::heightOfReadout() const {
    const QMWidget* const shown = readout();
    if (shown == nullptr || !shown->isVisible() || !shown->getBounds().intersects(getBounds()))
        return 0;
    const int reach = shown->getBottom() - getY();
    if (reach > getHeight() / 2)
        return juce::roundToInt(usualReadoutUnits * getMagnification());
    return reach + gapPixels;
}

void QMFaderWidget::arrange() {
    drawing.setArea(getLocalBounds().withTrimmedTop(heightOfReadout()), getMagnification());
    repaint();
}

void QMFaderWidget::resized() {
    arrange();
}

void QMFaderWidget::moved() {
    arrange();
}

void QMFaderWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    arrange();
}

// Drawing.

void QMFaderWidget::positionChanged(float before) {
    repaint(drawing.changedArea(before, getValue()));
}

void QMFaderWidget::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(disabledOpacity);
    drawing.setColours(getContrastColour(), accentColour);
    drawing.draw(g, getValue());
    if (!isEnabled())
        g.endTransparencyLayer();
}
