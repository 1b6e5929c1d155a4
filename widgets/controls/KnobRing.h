// SPDX-License-Identifier: GPL-3.0-or-later
// The ring around a knob that shows its value as an arc. Angles are clockwise from twelve o'clock;
// a knob's travel goes from -135 to 135 degrees. [message thread]
#pragma once

#include "widgets/controls/CachedDrawing.h"

#include <juce_graphics/juce_graphics.h>

#include <cstdint>
#include <optional>

class KnobRing {
public:
    /// Where the arc begins and ends, in degrees. Other modes than these draw nothing at all.
    enum Mode : std::int32_t {
        fromMinimum = 2,
        fromCentre = 3,
        bothWays = 4,      ///< spreading from the top
        secondOutside = 5, ///< the second value, turning from the minimum away from the track
        fromMaximum = 6,   ///< the arc is the longer the smaller the value
        secondFromMaximum = 7,
        bothWaysReversed = 8 ///< at its widest for the minimum
    };

    struct Arc {
        float start = 0.0f;
        float end = 0.0f;
    };

    struct Look {
        juce::Colour accent{0, 255, 0};
        juce::Colour frame;
        bool isEnabled = true;
        bool alwaysDrawn = false; ///< the value's arc of a disabled knob too
    };

    /// Values of 0 to 1. Nothing for a mode that there is not.
    [[nodiscard]] static std::optional<Arc> valueArc(std::int32_t mode, float value,
                                                     float secondValue);

    /// From one angle to another along the outer radius and back along the inner one; degrees.
    [[nodiscard]] static juce::Path shape(juce::Point<float> centre, float outerRadius,
                                          float innerRadius, Arc arc);

    /// The knob's area, and the width of the ring in pixels.
    void setArea(juce::Rectangle<int> knob, float width);

    [[nodiscard]] float getOuterRadius() const { return outerRadius; }

    [[nodiscard]] float getInnerRadius() const { return innerRadius; }

    void setMode(std::int32_t newMode);

    [[nodiscard]] std::int32_t getMode() const { return mode; }

    void setSecondValue(float newValue);

    [[nodiscard]] float getSecondValue() const { return secondValue; }

    void draw(juce::Graphics& g, float value, const Look& look);

private:
    [[nodiscard]] juce::Point<float> centre() const;
    [[nodiscard]] juce::Path trackAtOrigin() const;

    juce::Rectangle<int> area;
    float outerRadius = 0.0f;
    float innerRadius = 0.0f;
    std::int32_t mode = 1;
    float secondValue = 0.01f;
    CachedDrawing track;
    CachedDrawing outline;
    bool drawnEnabled = true;
    juce::Colour drawnFrame;
};
