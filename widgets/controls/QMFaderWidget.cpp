// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMFaderWidget.h"

#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/images/ResourceImages.h"

namespace {

constexpr int gapPixels = 3; ///< between the readout and the cap

} // namespace

QMFaderWidget::QMFaderWidget()
    : FaderControl(FaderDrawing::Direction::upwards) {
    setCapImage(loadResourceImage("faderknob.png"));
}

QMFaderWidget::~QMFaderWidget() {
    setReadout(nullptr);
}

double QMFaderWidget::travelOf(juce::Point<int> movement, bool fine) const {
    return travelOfPixels(-movement.y, fine);
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
    const auto* const framed = dynamic_cast<const QMParameterReadoutWidget*>(shown);
    const int bottom = framed == nullptr ? shown->getHeight() : framed->getFrameArea().getBottom();
    return juce::jmin(shown->getY() + bottom - getY() + gapPixels, getHeight() / 2);
}

juce::Rectangle<int> QMFaderWidget::travelArea() const {
    return getLocalBounds().withTrimmedTop(heightOfReadout());
}

void QMFaderWidget::moved() {
    arrange();
}
