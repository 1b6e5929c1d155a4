// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterRenderer.h"

#include <algorithm>
#include <utility>

namespace {

// Below it, at -60 dB, a bar has no length.
constexpr float floorLevel = 1.0e-6f;
// The highest level that two steps of 16 bits below full scale still give.
constexpr float clipLevel = 0.99993896f;
constexpr float clipDecay = 0.8f;
constexpr float faintestGlow = 1.0f / 255.0f;
constexpr std::int64_t ticksPerSecond = 60;

bool visiblyDiffer(float before, float now) {
    return before != now && (before > floorLevel || now > floorLevel);
}

} // namespace

MeterRenderer::MeterRenderer(MeterClock timeSource)
    : clock(std::move(timeSource))
    , scale(meterScales().size() - 1)
    , holdStart(ticksNow()) {
    const ZoneColours colours{juce::Colour(0, 255, 0), juce::Colour(255, 255, 0),
                              juce::Colour(255, 0, 0)};
    zoneColours.fill(colours);
    updateGradients();
}

void MeterRenderer::setArea(juce::Rectangle<int> meter, juce::Rectangle<int> clipLamp) {
    area = meter;
    lamp = clipLamp;
    updateGradients();
    forceRedraw();
}

void MeterRenderer::setMapping(const MeterMapping& newMapping) {
    mapping = newMapping;
    updateGradients();
    forceRedraw();
}

void MeterRenderer::setScale(std::size_t index) {
    if (index < meterScales().size())
        scale = index;
    forceRedraw();
}

void MeterRenderer::setZoneColours(std::size_t bar, const ZoneColours& colours) {
    zoneColours[bar] = colours;
    updateGradients();
    forceRedraw();
}

void MeterRenderer::setPreset(const Preset& newPreset) {
    preset = newPreset;
    forceRedraw();
}

std::int64_t MeterRenderer::ticksNow() const {
    return clock() * ticksPerSecond / 1000;
}

int MeterRenderer::lengthOfMeter() const {
    return isVertical() ? area.getHeight() : area.getWidth();
}

int MeterRenderer::extentOf(double level) const {
    return juce::roundToInt(mapping.fractionOf(level) * lengthOfMeter());
}

float MeterRenderer::positionOf(double level) const {
    const auto distance = static_cast<float>(mapping.fractionOf(level) * lengthOfMeter());
    return isVertical() ? static_cast<float>(area.getBottom()) - distance
                        : static_cast<float>(area.getX()) + distance;
}

bool MeterRenderer::levelsDiffer(const MeterData& data) const {
    return visiblyDiffer(drawn.level[0], data.level[0]) ||
           visiblyDiffer(drawn.level[1], data.level[1]) ||
           visiblyDiffer(drawn.hold[0], data.hold[0]) ||
           visiblyDiffer(drawn.hold[1], data.hold[1]) ||
           visiblyDiffer(drawn.envelope, data.envelope);
}

bool MeterRenderer::needsRedraw(const MeterData& data) const {
    if (redrawForced || levelsDiffer(data) || drawn.weighting != data.weighting)
        return true;
    if (drawn.overloads[0] != data.overloads[0] || drawn.overloads[1] != data.overloads[1])
        return true;
    if (clipGlow > 0.0f || releaseIsDue())
        return true;
    return drawnExtent[0] != extentOf(data.level[0]) || drawnExtent[1] != extentOf(data.level[1]);
}

void MeterRenderer::paint(juce::Graphics& g, MeterData& data) {
    redrawForced = false;
    drawn = data;
    if (area.isEmpty())
        return;
    updateGlow(data.level[0]);
    for (std::size_t i = 0; i < heldOverloads.size(); ++i)
        heldOverloads[i] = std::max(heldOverloads[i], data.overloads[i]);
    updateHolds(data);
    drawGround(g);
    drawBars(g, data);
    drawGloss(g);
    drawLamp(g);
    releaseHolds(data);
}

void MeterRenderer::updateGlow(float peak) {
    clipGlow *= clipDecay;
    if (clipGlow < faintestGlow)
        clipGlow = 0.0f;
    if (mapping.mode == MeterMappingMode::compressed && peak > clipLevel)
        clipGlow = 1.0f;
}

void MeterRenderer::updateHolds(const MeterData& data) {
    for (std::size_t i = heldLevel.size(); i-- > 0;) {
        const float risen = std::max({heldLevel[i], data.hold[i], data.level[i]});
        if (risen > heldLevel[i])
            holdStart = ticksNow();
        heldLevel[i] = risen;
    }
}

bool MeterRenderer::showsSomethingHeld() const {
    const bool marks =
        !preset.withoutHoldMarks && (heldLevel[0] > floorLevel || heldLevel[1] > floorLevel);
    return marks || (holdResetsOverloads && (heldOverloads[0] > 0 || heldOverloads[1] > 0));
}

bool MeterRenderer::releaseIsDue() const {
    if (!holdEnabled || !showsSomethingHeld())
        return false;
    const auto ticks = static_cast<double>(ticksNow() - holdStart);
    return ticks / ticksPerSecond > preset.holdSeconds;
}

void MeterRenderer::releaseHolds(MeterData& data) {
    if (!releaseIsDue())
        return;
    heldLevel.fill(0.0f);
    if (holdResetsOverloads)
        heldOverloads.fill(0);
    for (std::size_t i = 0; i < heldLevel.size(); ++i) {
        data.hold[i] = 0.0f;
        data.overloads[i] = 0;
    }
    holdStart = ticksNow();
    // This picture still shows what has been let go.
    forceRedraw();
}

juce::Colour MeterRenderer::getClipColour() const {
    return juce::Colour(static_cast<juce::uint8>(juce::roundToInt(255.0f * clipGlow)),
                        juce::uint8{0}, juce::uint8{0});
}
