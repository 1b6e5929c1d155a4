// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/FaderDrawing.h"

#include <cmath>

namespace {

// Design units.
constexpr float capLengthUnits = 34.0f; ///< along the travel
constexpr float capBreadthUnits = 26.0f;
constexpr float slotUnits = 6.0f;
constexpr float tickUnits = 9.0f;
constexpr float tickGapUnits = 9.0f; ///< from the slot's middle

constexpr int tickCount = 11;
constexpr int ticksToALongOne = 5;

juce::ColourGradient across(juce::Rectangle<float> area, bool upright, juce::Colour first,
                            juce::Colour second) {
    return upright ? juce::ColourGradient::horizontal(first, area.getX(), second, area.getRight())
                   : juce::ColourGradient::vertical(first, area.getY(), second, area.getBottom());
}

/// Positions along the travel, 0 at the end that stands for the maximum of an upright fader and for
/// the minimum of a level one.
float along(juce::Rectangle<float> area, bool upright, float position) {
    return upright ? area.getY() + position * area.getHeight()
                   : area.getX() + position * area.getWidth();
}

} // namespace

void FaderDrawing::setArea(juce::Rectangle<int> newArea, float newScale) {
    if (newArea == area && newScale == scale)
        return;
    area = newArea;
    scale = newScale;
    track.drop();
    cap.drop();
}

void FaderDrawing::setCapImage(const juce::Image& image) {
    capImage = image;
    cap.drop();
    track.drop();
}

void FaderDrawing::setColours(juce::Colour newTicks, juce::Colour newAccent) {
    if (newTicks != ticks)
        track.drop();
    if (newAccent != accent)
        cap.drop();
    ticks = newTicks;
    accent = newAccent;
}

// Where things are.

juce::Point<int> FaderDrawing::capSize() const {
    const int breadth = isUpright() ? area.getWidth() : area.getHeight();
    const int length = isUpright() ? area.getHeight() : area.getWidth();
    juce::Point<float> size(capBreadthUnits * scale, capLengthUnits * scale);
    if (capImage.isValid()) {
        const auto imageBreadth =
            static_cast<float>(isUpright() ? capImage.getWidth() : capImage.getHeight());
        const auto imageLength =
            static_cast<float>(isUpright() ? capImage.getHeight() : capImage.getWidth());
        size.y = size.x * imageLength / imageBreadth;
    }
    const float shrink = juce::jmin(1.0f, static_cast<float>(breadth) / size.x,
                                    0.5f * static_cast<float>(length) / size.y);
    const int across = juce::jmax(1, juce::roundToInt(size.x * shrink));
    const int onward = juce::jmax(1, juce::roundToInt(size.y * shrink));
    return isUpright() ? juce::Point<int>(across, onward) : juce::Point<int>(onward, across);
}

int FaderDrawing::trackLength() const {
    const int length = isUpright() ? area.getHeight() - capSize().y : area.getWidth() - capSize().x;
    return juce::jmax(1, length);
}

juce::Rectangle<int> FaderDrawing::capArea(float value) const {
    const juce::Point<int> size = capSize();
    const float moved = juce::jlimit(0.0f, 1.0f, value) * static_cast<float>(trackLength());
    if (isUpright())
        return {area.getCentreX() - size.x / 2, area.getBottom() - size.y - juce::roundToInt(moved),
                size.x, size.y};
    return {area.getX() + juce::roundToInt(moved), area.getCentreY() - size.y / 2, size.x, size.y};
}

juce::Rectangle<int> FaderDrawing::changedArea(float before, float after) const {
    const juce::Rectangle<int> first = capArea(before);
    const juce::Rectangle<int> second = capArea(after);
    return first == second ? juce::Rectangle<int>() : first.getUnion(second);
}

/// The ends of the slot are where the middle of the cap comes to stand.
juce::Rectangle<float> FaderDrawing::slot() const {
    const juce::Rectangle<int> lowest = capArea(0.0f);
    const juce::Rectangle<int> highest = capArea(1.0f);
    const juce::Point<float> from = lowest.toFloat().getCentre();
    const juce::Point<float> to = highest.toFloat().getCentre();
    const float half = 0.5f * slotUnits * scale;
    return juce::Rectangle<float>(from, to).expanded(half);
}

// Drawing.

void FaderDrawing::draw(juce::Graphics& g, float value) {
    track.draw(g, area, [this](juce::Graphics& drawing) {
        drawing.setOrigin(-area.getX(), -area.getY());
        drawTrack(drawing);
    });
    drawValue(g, value);
    const juce::Rectangle<int> where = capArea(value);
    cap.draw(g, where, [this](juce::Graphics& drawing) { drawCap(drawing); });
}

void FaderDrawing::drawTrack(juce::Graphics& g) const {
    drawTicks(g);
    const juce::Rectangle<float> groove = slot();
    const float corner = 0.5f * slotUnits * scale;
    g.setColour(ticks.withAlpha(0.22f));
    g.fillRoundedRectangle(groove.expanded(1.0f).translated(0.0f, 0.5f), corner + 1.0f);
    g.setGradientFill(across(groove, isUpright(), juce::Colour(6, 6, 7), juce::Colour(40, 41, 43)));
    g.fillRoundedRectangle(groove, corner);
}

void FaderDrawing::drawTicks(juce::Graphics& g) const {
    const juce::Rectangle<float> groove = slot().reduced(0.5f * slotUnits * scale);
    const juce::Point<float> middle = groove.getCentre();
    const float thickness = juce::jmax(1.0f, std::round(scale));
    for (int i = 0; i < tickCount; ++i) {
        const bool isLong = i % ticksToALongOne == 0;
        const float position = std::round(
            along(groove, isUpright(), static_cast<float>(i) / (tickCount - 1)) - 0.5f * thickness);
        const float length = tickUnits * scale * (isLong ? 1.0f : 0.6f);
        const float gap = tickGapUnits * scale;
        g.setColour(ticks.withAlpha(isLong ? 0.6f : 0.35f));
        if (isUpright()) {
            g.fillRect(middle.x - gap - length, position, length, thickness);
            g.fillRect(middle.x + gap, position, length, thickness);
        } else {
            g.fillRect(position, middle.y - gap - length, thickness, length);
            g.fillRect(position, middle.y + gap, thickness, length);
        }
    }
}

void FaderDrawing::drawValue(juce::Graphics& g, float value) const {
    const juce::Point<float> from = capArea(0.0f).toFloat().getCentre();
    const juce::Point<float> to = capArea(value).toFloat().getCentre();
    const float half = juce::jmax(1.0f, 0.17f * slotUnits * scale);
    g.setColour(accent.withMultipliedAlpha(0.85f));
    g.fillRoundedRectangle(juce::Rectangle<float>(from, to).expanded(half), half);
}

/// A cap of metal, hollow in the middle for a finger, with a line where the value is.
void FaderDrawing::drawCap(juce::Graphics& g) const {
    const auto bounds = juce::Rectangle<int>(capSize().x, capSize().y).toFloat();
    if (capImage.isValid()) {
        g.setImageResamplingQuality(juce::Graphics::highResamplingQuality);
        g.drawImage(capImage, bounds);
        return;
    }
    const bool upright = isUpright();
    const juce::Rectangle<float> body = bounds.reduced(1.0f).withTrimmedBottom(1.0f);
    const float corner = 3.0f * scale;
    g.setColour(juce::Colours::black.withAlpha(0.5f));
    g.fillRoundedRectangle(body.translated(0.0f, 1.5f), corner);
    const auto end = [&](float position) { return along(body, upright, position); };
    juce::ColourGradient metal =
        upright ? juce::ColourGradient::vertical(juce::Colour(205, 207, 210), end(0.0f),
                                                 juce::Colour(74, 76, 79), end(1.0f))
                : juce::ColourGradient::horizontal(juce::Colour(205, 207, 210), end(0.0f),
                                                   juce::Colour(74, 76, 79), end(1.0f));
    metal.addColour(0.18, juce::Colour(150, 152, 155));
    metal.addColour(0.22, juce::Colour(62, 64, 67));
    metal.addColour(0.5, juce::Colour(104, 106, 110));
    metal.addColour(0.78, juce::Colour(158, 160, 163));
    metal.addColour(0.82, juce::Colour(112, 114, 117));
    g.setGradientFill(metal);
    g.fillRoundedRectangle(body, corner);
    g.setColour(juce::Colours::black.withAlpha(0.75f));
    g.drawRoundedRectangle(body.reduced(0.5f), corner, 1.0f);
    const float thickness = juce::jmax(2.0f, std::round(2.0f * scale));
    const juce::Rectangle<float> line =
        upright ? body.withSizeKeepingCentre(body.getWidth() - 4.0f, thickness)
                : body.withSizeKeepingCentre(thickness, body.getHeight() - 4.0f);
    g.setColour(juce::Colours::black.withAlpha(0.6f));
    g.fillRect(line.expanded(upright ? 0.0f : 1.0f, upright ? 1.0f : 0.0f));
    g.setColour(accent.interpolatedWith(juce::Colours::white, 0.35f).withAlpha(1.0f));
    g.fillRect(line);
}
