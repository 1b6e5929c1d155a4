// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HistoryGlass.h"

#include "widgets/drawing/WidgetStyle.h"

#include <cmath>

namespace {

constexpr float fontHeight = 9.0f;
constexpr float smallestFont = 6.5f; ///< pixels that a label can be read at
constexpr double mostSecondsInHalves = 4.0;

const juce::Colour top(25, 28, 31);
const juce::Colour bottom(11, 12, 14);
const juce::Colour grid(150, 170, 185);

void drawGround(juce::Graphics& g, juce::Rectangle<float> area) {
    g.setGradientFill(juce::ColourGradient::vertical(top, area.getY(), bottom, area.getBottom()));
    g.fillRect(area);
}

void drawTimes(juce::Graphics& g, juce::Rectangle<int> area, double seconds) {
    g.setColour(grid.withAlpha(0.08f));
    const double step = seconds <= mostSecondsInHalves ? 0.5 : 1.0;
    for (double time = step; time < seconds; time += step) {
        const double x = (area.getWidth() - 1) * (1.0 - time / seconds);
        g.fillRect(juce::roundToInt(x), 0, 1, area.getHeight());
    }
}

void drawMark(juce::Graphics& g, juce::Rectangle<int> area, float magnification,
              const HistoryMark& mark) {
    // On whole pixels, or it would be a blur.
    const auto y = static_cast<int>(std::floor(mark.y));
    g.setColour(grid.withAlpha(0.16f));
    g.fillRect(0, y, area.getWidth(), 1);
    const float height = fontHeight * magnification;
    if (height < smallestFont)
        return;
    g.setColour(grid.withAlpha(0.55f));
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, height));
    g.drawText(mark.label,
               juce::Rectangle<float>(5.0f * magnification, mark.y - 1.1f * height,
                                      static_cast<float>(area.getWidth()), 1.1f * height),
               juce::Justification::bottomLeft, false);
}

/// Of the light that falls on the panel from above.
void drawReflection(juce::Graphics& g, juce::Rectangle<float> area) {
    juce::Path light;
    light.startNewSubPath(area.getTopLeft());
    light.lineTo(area.getTopRight());
    light.lineTo(area.getRight(), area.getY() + 0.22f * area.getHeight());
    light.quadraticTo(area.getCentreX(), area.getY() + 0.42f * area.getHeight(), area.getX(),
                      area.getY() + 0.46f * area.getHeight());
    light.closeSubPath();
    g.setGradientFill(juce::ColourGradient::vertical(
        juce::Colours::white.withAlpha(0.06f), area.getY(), juce::Colours::white.withAlpha(0.012f),
        area.getY() + 0.46f * area.getHeight()));
    g.fillPath(light);
}

/// The panel's edge throws a shadow onto the glass; the far edge catches the light.
void drawRim(juce::Graphics& g, juce::Rectangle<float> area, float magnification) {
    const float depth = 5.0f * magnification;
    g.setGradientFill(juce::ColourGradient::vertical(juce::Colours::black.withAlpha(0.55f),
                                                     area.getY(), juce::Colours::transparentBlack,
                                                     area.getY() + depth));
    g.fillRect(area.withHeight(depth));
    g.setGradientFill(juce::ColourGradient::horizontal(juce::Colours::black.withAlpha(0.35f),
                                                       area.getX(), juce::Colours::transparentBlack,
                                                       area.getX() + 0.6f * depth));
    g.fillRect(area.withWidth(0.6f * depth));
    g.setGradientFill(juce::ColourGradient::vertical(juce::Colours::black, area.getY(),
                                                     juce::Colours::white.withAlpha(0.16f),
                                                     area.getBottom()));
    g.drawRect(area, 1.0f);
}

} // namespace

void drawHistoryGlass(juce::Graphics& g, juce::Rectangle<int> area, float magnification,
                      const std::vector<HistoryMark>& marks, double seconds) {
    const juce::Rectangle<float> whole = area.toFloat();
    drawGround(g, whole);
    drawTimes(g, area, seconds);
    for (const HistoryMark& mark : marks)
        drawMark(g, area, magnification, mark);
    drawReflection(g, whole);
    drawRim(g, whole, magnification);
}
