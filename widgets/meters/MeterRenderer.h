// SPDX-License-Identifier: GPL-3.0-or-later
// Draws a level meter, one bar of peak and mean on top of each other, into a rectangle of anything:
// keeps the peak holds, the clip lamp's glow and the counts of overloads, and knows whether a new
// picture would differ from the last one. Stands upright when it is higher than wide.
// [message thread]
#pragma once

#include "widgets/meters/MeterClock.h"
#include "widgets/meters/MeterData.h"
#include "widgets/meters/MeterMapping.h"
#include "widgets/meters/MeterScale.h"

#include <juce_graphics/juce_graphics.h>

#include <array>
#include <cstddef>
#include <cstdint>

class MeterRenderer {
public:
    /// How long peaks are held; a table of them belongs to the meter's modes.
    struct Preset {
        double holdSeconds = 2.0;
        double secondSeconds = 4.0; ///< for renderers that hold in two steps; this one does not
        bool withoutHoldMarks = false;
    };

    using ZoneColours = std::array<juce::Colour, 3>; ///< quiet, loud, near full scale

    explicit MeterRenderer(MeterClock timeSource = systemMeterClock());

    // What is drawn where.

    /// An empty lamp is none.
    void setArea(juce::Rectangle<int> meter, juce::Rectangle<int> clipLamp = {});

    [[nodiscard]] juce::Rectangle<int> getArea() const { return area; }

    [[nodiscard]] bool isVertical() const { return area.getHeight() > area.getWidth(); }

    void setMapping(const MeterMapping& newMapping);

    [[nodiscard]] const MeterMapping& getMapping() const { return mapping; }

    /// Index into meterScales(); one that there is not is ignored.
    void setScale(std::size_t index);

    [[nodiscard]] const MeterScale& getScale() const { return meterScales()[scale]; }

    /// bar: 0 peak, 1 mean.
    void setZoneColours(std::size_t bar, const ZoneColours& colours);
    void setPreset(const Preset& newPreset);

    [[nodiscard]] const Preset& getPreset() const { return preset; }

    /// Otherwise peaks are held for ever.
    void setHoldEnabled(bool flag) { holdEnabled = flag; }

    /// Whether counts of overloads go with the holds.
    void setHoldResetsOverloads(bool flag) { holdResetsOverloads = flag; }

    /// The coordinate of a level along the meter, in the coordinates of its area.
    [[nodiscard]] float positionOf(double level) const;

    // Drawing.

    /// Whether the picture of this data would be another one than the last. Changes among levels
    /// that are too low to be seen do not count.
    [[nodiscard]] bool needsRedraw(const MeterData& data) const;

    void forceRedraw() { redrawForced = true; }

    /// Draws, and lets go of holds whose time is up, in the data as well.
    void paint(juce::Graphics& g, MeterData& data);

    // What the picture shows. bar: 0 peak, 1 mean.

    [[nodiscard]] float getHeldLevel(std::size_t bar) const { return heldLevel[bar]; }

    [[nodiscard]] std::int32_t getOverloads(std::size_t counter) const {
        return heldOverloads[counter];
    }

    /// Pixels from the silent end.
    [[nodiscard]] int getDrawnExtent(std::size_t bar) const { return drawnExtent[bar]; }

    [[nodiscard]] float getClipGlow() const { return clipGlow; }

    [[nodiscard]] juce::Colour getClipColour() const;

private:
    using Bars = std::array<float, 2>;

    [[nodiscard]] std::int64_t ticksNow() const; ///< sixtieths of a second
    [[nodiscard]] int lengthOfMeter() const;
    [[nodiscard]] int extentOf(double level) const;
    [[nodiscard]] bool levelsDiffer(const MeterData& data) const;
    [[nodiscard]] bool releaseIsDue() const;
    [[nodiscard]] bool showsSomethingHeld() const;
    void updateGlow(float peak);
    void updateHolds(const MeterData& data);
    void releaseHolds(MeterData& data);

    /// The part of the area between two distances from the silent end.
    [[nodiscard]] juce::Rectangle<int> partOfArea(int from, int to) const;
    [[nodiscard]] juce::ColourGradient gradientOf(std::size_t bar) const;
    [[nodiscard]] juce::Colour zoneColourAt(std::size_t bar, double level) const;
    void updateGradients();
    void drawGround(juce::Graphics& g) const;
    void drawBars(juce::Graphics& g, const MeterData& data);
    void drawHoldMark(juce::Graphics& g, std::size_t bar) const;
    void drawGloss(juce::Graphics& g) const;
    void drawLamp(juce::Graphics& g) const;

    MeterClock clock;
    juce::Rectangle<int> area;
    juce::Rectangle<int> lamp;
    std::size_t scale;
    MeterMapping mapping;
    Preset preset;
    bool holdEnabled = true;
    bool holdResetsOverloads = true;
    std::array<ZoneColours, 2> zoneColours;
    std::array<juce::ColourGradient, 2> gradients;

    MeterData drawn; ///< what the last picture shows
    bool redrawForced = true;
    std::array<int, 2> drawnExtent{};
    Bars heldLevel{};
    std::int64_t holdStart;
    std::array<std::int32_t, 2> heldOverloads{};
    float clipGlow = 0.0f;
};
