// SPDX-License-Identifier: GPL-3.0-or-later
// The picture: a dark ground with the zones faintly on it, the peak's bar half transparent and the
// mean's solid, marks of the held levels, a lamp beyond full scale.
#include "widgets/meters/MeterRenderer.h"

#include <algorithm>
#include <cmath>

namespace {

// As levels. Bars take their second colour between the upper two, around the reference.
const double quietZone = std::pow(10.0, -3.0);
const double loudZone = std::pow(10.0, -1.8);
const double reference = std::pow(10.0, -0.3);
const double fullZone = std::pow(10.0, -0.1);

constexpr float unlitOpacity = 0.13f;
constexpr float peakOpacity = 0.55f;
constexpr float darkestOfQuiet = 0.7f; ///< brightness below the quiet zone's threshold

const juce::Colour& shine() {
    static const juce::Colour colour = juce::Colours::white.withAlpha(0.1f);
    return colour;
}

const juce::Colour& shade() {
    static const juce::Colour colour = juce::Colours::black.withAlpha(0.2f);
    return colour;
}

juce::Colour between(juce::Colour low, juce::Colour high, double position, double from, double to) {
    const double share = to > from ? (position - from) / (to - from) : 1.0;
    return low.interpolatedWith(high, static_cast<float>(std::clamp(share, 0.0, 1.0)));
}

} // namespace

juce::Colour MeterRenderer::zoneColourAt(std::size_t bar, double level) const {
    const ZoneColours& colours = zoneColours[bar];
    const double position = mapping.fractionOf(level);
    const double loud = mapping.fractionOf(loudZone);
    const double middle = mapping.fractionOf(reference);
    const double full = mapping.fractionOf(fullZone);
    if (position <= mapping.fractionOf(quietZone))
        return colours[0].withMultipliedBrightness(darkestOfQuiet);
    if (position < middle)
        return between(colours[0], colours[1], position, loud, middle);
    return between(colours[1], colours[2], position, middle, full);
}

juce::ColourGradient MeterRenderer::gradientOf(std::size_t bar) const {
    const juce::Rectangle<float> r = area.toFloat();
    const juce::Point<float> silent = isVertical() ? r.getBottomLeft() : r.getTopLeft();
    const juce::Point<float> loud = isVertical() ? r.getTopLeft() : r.getTopRight();
    const ZoneColours& colours = zoneColours[bar];
    juce::ColourGradient gradient(colours[0].withMultipliedBrightness(darkestOfQuiet), silent,
                                  zoneColourAt(bar, 1.0), loud, false);
    for (const double level : {quietZone, loudZone, reference, fullZone}) {
        const double position = mapping.fractionOf(level);
        if (position > 0.0 && position < 1.0)
            gradient.addColour(position,
                               level == quietZone ? colours[0] : zoneColourAt(bar, level));
    }
    return gradient;
}

void MeterRenderer::updateGradients() {
    for (std::size_t bar = 0; bar < gradients.size(); ++bar)
        gradients[bar] = gradientOf(bar);
}

juce::Rectangle<int> MeterRenderer::partOfArea(int from, int to) const {
    if (isVertical())
        return {area.getX(), area.getBottom() - to, area.getWidth(), to - from};
    return {area.getX() + from, area.getY(), to - from, area.getHeight()};
}

void MeterRenderer::drawGround(juce::Graphics& g) const {
    g.setColour(juce::Colour(14, 15, 16));
    g.fillRect(area.getUnion(lamp).expanded(1));
    juce::ColourGradient unlit = gradients[0];
    unlit.multiplyOpacity(unlitOpacity);
    g.setGradientFill(unlit);
    g.fillRect(area);
}

void MeterRenderer::drawBars(juce::Graphics& g, const MeterData& data) {
    for (std::size_t bar = 0; bar < drawnExtent.size(); ++bar)
        drawnExtent[bar] = extentOf(data.level[bar]);
    juce::ColourGradient peak = gradients[0];
    peak.multiplyOpacity(peakOpacity);
    g.setGradientFill(peak);
    g.fillRect(partOfArea(drawnExtent[1], std::max(drawnExtent[0], drawnExtent[1])));
    g.setGradientFill(gradients[1]);
    g.fillRect(partOfArea(0, drawnExtent[1]));
    if (!preset.withoutHoldMarks) {
        drawHoldMark(g, 1);
        drawHoldMark(g, 0);
    }
}

void MeterRenderer::drawHoldMark(juce::Graphics& g, std::size_t bar) const {
    const int breadth = isVertical() ? area.getWidth() : area.getHeight();
    const int extent = extentOf(heldLevel[bar]);
    const int thickness = bar == 0 ? std::max(1, breadth / 7) : 1;
    if (extent < thickness)
        return;
    const juce::Colour colour = zoneColourAt(bar, heldLevel[bar]);
    g.setColour(bar == 0 ? colour.interpolatedWith(juce::Colours::white, 0.25f)
                         : colour.withAlpha(0.7f));
    g.fillRect(partOfArea(extent - thickness, extent));
}

void MeterRenderer::drawGloss(juce::Graphics& g) const {
    const int third = (isVertical() ? area.getWidth() : area.getHeight()) / 3;
    if (third == 0)
        return;
    g.setColour(shine());
    g.fillRect(isVertical() ? area.withWidth(third) : area.withHeight(third));
    g.setColour(shade());
    g.fillRect(isVertical() ? area.withLeft(area.getRight() - third)
                            : area.withTop(area.getBottom() - third));
}

void MeterRenderer::drawLamp(juce::Graphics& g) const {
    if (lamp.isEmpty())
        return;
    const bool overloaded = heldOverloads[0] > 0 || heldOverloads[1] > 0;
    // As dark as the unlit zones; brighter as long as an overload is remembered.
    const juce::Colour dark(overloaded ? juce::uint8{140} : juce::uint8{52}, juce::uint8{0},
                            juce::uint8{0});
    const juce::Colour clip = getClipColour();
    g.setColour(clip.getRed() > dark.getRed() ? clip : dark);
    g.fillRect(lamp);
}
