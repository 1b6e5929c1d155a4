// SPDX-License-Identifier: GPL-3.0-or-later
// What upright and level faders are drawn of: a slot with ticks on both sides, the part of it that
// shows the value, and a cap. [message thread]
#pragma once

#include "widgets/controls/CachedDrawing.h"

#include <juce_graphics/juce_graphics.h>

class FaderDrawing {
public:
    enum class Direction { upwards, rightwards };

    explicit FaderDrawing(Direction travelDirection)
        : direction(travelDirection) {}

    /// Where the fader is, and pixels per design unit.
    void setArea(juce::Rectangle<int> newArea, float newScale);

    /// Null for a cap that is drawn.
    void setCapImage(const juce::Image& image);

    /// Slot, ticks and the value in them.
    void setColours(juce::Colour newTicks, juce::Colour newAccent);

    /// Pixels between the cap's ends of travel, at least 1.
    [[nodiscard]] int trackLength() const;
    [[nodiscard]] juce::Rectangle<int> capArea(float value) const;

    /// What has to be painted anew when one value follows another.
    [[nodiscard]] juce::Rectangle<int> changedArea(float before, float after) const;

    void draw(juce::Graphics& g, float value);

private:
    [[nodiscard]] bool isUpright() const { return direction == Direction::upwards; }

    [[nodiscard]] juce::Point<int> capSize() const;
    [[nodiscard]] juce::Rectangle<float> slot() const;
    void drawTrack(juce::Graphics& g) const;
    void drawTicks(juce::Graphics& g) const;
    void drawCap(juce::Graphics& g) const;
    void drawValue(juce::Graphics& g, float value) const;

    Direction direction;
    juce::Rectangle<int> area;
    float scale = 1.0f;
    juce::Image capImage;
    juce::Colour ticks{juce::Colours::white};
    juce::Colour accent{0, 255, 0};
    CachedDrawing track;
    CachedDrawing cap;
};
