// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/QMShadower.h"

#include <utility>

QMShadower::QMShadower(DarkEdge edge)
    : dark(edge) {
    setInterceptsMouseClicks(false, false);
}

void QMShadower::setDarkEdge(DarkEdge edge) {
    if (edge == dark)
        return;
    dark = edge;
    repaint();
}

void QMShadower::paint(juce::Graphics& g) {
    const juce::Rectangle<float> area = getLocalBounds().toFloat();
    juce::Point<float> from = area.getTopLeft();
    juce::Point<float> to = getWidth() > getHeight() ? area.getBottomLeft() : area.getTopRight();
    if (dark == DarkEdge::bottomOrRight)
        std::swap(from, to);
    g.setGradientFill({juce::Colours::black.withAlpha(darkestOpacity), from,
                       juce::Colours::transparentBlack, to, false});
    g.fillRect(area);
}
