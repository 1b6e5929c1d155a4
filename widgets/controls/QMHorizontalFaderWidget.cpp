// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMHorizontalFaderWidget.h"

// The cap's image is that of upright faders; this one's is drawn.
QMHorizontalFaderWidget::QMHorizontalFaderWidget()
    : FaderControl(FaderDrawing::Direction::rightwards) {}

double QMHorizontalFaderWidget::travelOf(juce::Point<int> movement, bool fine) const {
    return travelOfPixels(movement.x, fine);
}
