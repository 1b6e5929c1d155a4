// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/KnobRing.h"

#include <cmath>

namespace {

constexpr float quarters = 135.0f; ///< from the top to an end of the travel
constexpr float travel = 2.0f * quarters;
constexpr float disabledOpacity = 0.4f;
constexpr float outlineOpacity = 0.25f;
constexpr float pi = juce::MathConstants<float>::pi;
/// Room for the outline, and for the centre that is a pixel higher than the knob's.
constexpr float margin = 2.0f;

float radians(float degrees) {
    return degrees / 360.0f * 2.0f * pi;
}

float numberOrZero(float number) {
    return std::isnan(number) ? 0.0f : number;
}

} // namespace

std::optional<KnobRing::Arc> KnobRing::valueArc(std::int32_t mode, float value, float secondValue) {
    const float v = numberOrZero(value);
    const float w = numberOrZero(secondValue);
    switch (mode) {
    case fromMinimum:
        return Arc{-quarters, -quarters + travel * v};
    case fromCentre: {
        const float end = -2.0f * (0.5f - v) * quarters;
        return v >= 0.5f ? Arc{0.0f, end} : Arc{end, 0.0f};
    }
    case bothWays:
        return Arc{quarters * v, -quarters * v};
    case bothWaysReversed:
        return Arc{quarters * (1.0f - v), -quarters * (1.0f - v)};
    case secondOutside:
        return Arc{-quarters, -quarters - travel * w};
    case fromMaximum:
        return Arc{quarters, quarters - travel * (1.0f - v)};
    case secondFromMaximum:
        return Arc{quarters, quarters - travel * (1.0f - w)};
    default:
        return std::nullopt;
    }
}

juce::Path KnobRing::shape(juce::Point<float> centre, float outerRadius, float innerRadius,
                           Arc arc) {
    juce::Path path;
    const auto add = [&](float radius, float from, float to, bool begins) {
        path.addCentredArc(centre.x, centre.y, radius, radius, 0.0f, radians(from), radians(to),
                           begins);
    };
    add(outerRadius, arc.start, arc.end, true);
    add(innerRadius, arc.end, arc.start, false);
    path.closeSubPath();
    return path;
}

void KnobRing::setArea(juce::Rectangle<int> knob, float width) {
    const float radius =
        static_cast<float>(juce::jmin(knob.getWidth(), knob.getHeight())) / 2.0f - margin;
    const float outer = juce::jmax(0.0f, radius);
    // At most what leaves room for a knob.
    const float inner = outer - juce::jlimit(0.0f, outer * 0.6f, numberOrZero(width));
    if (knob == area && outer == outerRadius && inner == innerRadius)
        return;
    area = knob;
    outerRadius = outer;
    innerRadius = inner;
    track.drop();
    outline.drop();
}

void KnobRing::setMode(std::int32_t newMode) {
    mode = newMode;
}

void KnobRing::setSecondValue(float newValue) {
    secondValue = numberOrZero(newValue);
}

juce::Point<float> KnobRing::centre() const {
    return area.toFloat().getCentre().translated(0.0f, -1.0f);
}

juce::Path KnobRing::trackAtOrigin() const {
    const juce::Point<float> middle = centre() - area.getPosition().toFloat();
    juce::Path path;
    path.addCentredArc(middle.x, middle.y, outerRadius, outerRadius, 0.0f, 1.25f * pi, 2.75f * pi,
                       true);
    path.addCentredArc(middle.x, middle.y, innerRadius, innerRadius, 0.0f, 2.75f * pi, 1.25f * pi,
                       false);
    path.closeSubPath();
    return path;
}

void KnobRing::draw(juce::Graphics& g, float value, const Look& look) {
    const std::optional<Arc> arc = valueArc(mode, value, secondValue);
    if (!arc.has_value() || outerRadius <= innerRadius)
        return;
    const float opacity = look.isEnabled ? 1.0f : disabledOpacity;
    if (look.isEnabled != drawnEnabled)
        track.drop();
    if (look.frame != drawnFrame)
        outline.drop();
    drawnEnabled = look.isEnabled;
    drawnFrame = look.frame;
    track.draw(g, area, [&](juce::Graphics& drawing) {
        drawing.setColour(juce::Colours::black.withAlpha(opacity));
        drawing.fillPath(trackAtOrigin());
    });
    if (look.isEnabled || look.alwaysDrawn) {
        g.setColour(look.accent.withMultipliedAlpha(opacity));
        g.fillPath(shape(centre(), outerRadius, innerRadius, *arc));
    }
    outline.draw(g, area, [&](juce::Graphics& drawing) {
        drawing.setColour(look.frame.withAlpha(outlineOpacity));
        drawing.strokePath(trackAtOrigin(), juce::PathStrokeType(1.0f));
    });
}
