// SPDX-License-Identifier: GPL-3.0-or-later
// A knob drawn without an image: what stands still is kept, what turns is drawn each time.
// [message thread]
#pragma once

#include "widgets/controls/CachedDrawing.h"
#include "widgets/controls/KnobTypes.h"

#include <juce_graphics/juce_graphics.h>

class DrawnKnob {
public:
    void setLook(const KnobLook& newLook);

    /// value: 0 to 1, from -135 to 135 degrees.
    void draw(juce::Graphics& g, juce::Rectangle<int> area, float value);

    [[nodiscard]] static float angleOf(float value); ///< radians, clockwise from twelve o'clock

private:
    void drawBody(juce::Graphics& g, juce::Rectangle<float> area) const;
    void drawCap(juce::Graphics& g, juce::Point<float> centre, float radius) const;
    void drawLine(juce::Graphics& g, juce::Point<float> centre, float radius, float angle) const;
    void drawPointer(juce::Graphics& g, juce::Point<float> centre, float radius, float angle) const;

    KnobLook look;
    CachedDrawing body;
};
