// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMDividerWidget.h"

#include "widgets/statics/BevelEdges.h"

QMDividerWidget::QMDividerWidget()
    : QMWidget(0) {
    setInterceptsMouseClicks(false, false);
    setAccessible(false);
}

void QMDividerWidget::paint(juce::Graphics& g) {
    const bool horizontal = getWidth() >= getHeight();
    const int length = horizontal ? getWidth() : getHeight();
    const int thickness = horizontal ? getHeight() : getWidth();
    // The shade ends in the middle, where the light begins; of a single line the shade is left.
    int line = (thickness + 1) / 2 - 2;
    const BevelEdge shade = BevelEdges::last(BevelEdges::dark());
    const BevelEdge shine = BevelEdges::first(BevelEdges::light());
    for (const juce::Colour colour : {shade[1], shade[2], shine[1], shine[2]}) {
        g.setColour(colour);
        if (horizontal)
            g.fillRect(0, line, length, 1);
        else
            g.fillRect(line, 0, 1, length);
        ++line;
    }
}
