// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMBevelWidget.h"

#include "widgets/statics/BevelEdges.h"

namespace {

void drawRows(juce::Graphics& g, const BevelEdge& edge, int top, int width) {
    for (const juce::Colour& colour : edge) {
        g.setColour(colour);
        g.fillRect(0, top++, width, 1);
    }
}

void drawColumns(juce::Graphics& g, const BevelEdge& edge, int left, int height) {
    for (const juce::Colour& colour : edge) {
        g.setColour(colour);
        g.fillRect(left++, 0, 1, height);
    }
}

} // namespace

QMBevelWidget::QMBevelWidget()
    : QMWidget(0) {
    setInterceptsMouseClicks(false, false);
    setAccessible(false);
}

void QMBevelWidget::setInverted(bool flag) {
    if (flag == inverted)
        return;
    inverted = flag;
    repaint();
}

void QMBevelWidget::paint(juce::Graphics& g) {
    const BevelEdges::Tone above = inverted ? BevelEdges::dark() : BevelEdges::light();
    const BevelEdges::Tone below = inverted ? BevelEdges::light() : BevelEdges::dark();
    const BevelEdge first = BevelEdges::first(above);
    const BevelEdge last = BevelEdges::last(below);
    drawRows(g, first, 0, getWidth());
    drawRows(g, last, getHeight() - 3, getWidth());
    drawColumns(g, first, 0, getHeight());
    drawColumns(g, last, getWidth() - 3, getHeight());
}
