// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/MenuDrawing.h"

#include <algorithm>

void drawMenuArrow(juce::Graphics& g, juce::Rectangle<float> area) {
    const juce::Rectangle<float> sign =
        area.withSizeKeepingCentre(0.5f * area.getWidth(), 0.3f * area.getHeight());
    juce::Path triangle;
    triangle.addTriangle(sign.getX(), sign.getY(), sign.getRight(), sign.getY(), sign.getCentreX(),
                         sign.getBottom());
    g.fillPath(triangle);
}

void drawMenuWindow(juce::Graphics& g, juce::Rectangle<float> area, juce::Colour background) {
    const juce::Rectangle<float> window = area.reduced(0.5f);
    if (window.isEmpty())
        return;
    const float corner = std::min(4.0f, 0.25f * window.getHeight());
    g.setColour(background);
    g.fillRoundedRectangle(window, corner);
    juce::Path shine;
    const juce::Rectangle<float> upper =
        window.reduced(1.0f).withHeight(0.45f * window.getHeight());
    shine.addRoundedRectangle(upper.getX(), upper.getY(), upper.getWidth(), upper.getHeight(),
                              corner, corner, true, true, false, false);
    g.setGradientFill(
        juce::ColourGradient::vertical(juce::Colours::white.withAlpha(0.22f), upper.getY(),
                                       juce::Colours::white.withAlpha(0.05f), upper.getBottom()));
    g.fillPath(shine);
    g.setColour(juce::Colours::black.withAlpha(0.7f));
    g.drawRoundedRectangle(window, corner, 1.0f);
}
