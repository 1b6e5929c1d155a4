// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/DrawnKnob.h"

#include <cmath>

namespace {

using Shape = KnobLook::Shape;

constexpr float pi = juce::MathConstants<float>::pi;
/// What a ring of the usual width around the knob leaves.
constexpr float radiusOfSize = 0.385f;

juce::Rectangle<float> circle(juce::Point<float> centre, float radius) {
    return juce::Rectangle<float>(2.0f * radius, 2.0f * radius).withCentre(centre);
}

/// Lit from above.
juce::ColourGradient litGradient(juce::Point<float> centre, float radius, juce::Colour upper,
                                 juce::Colour lower) {
    return {upper, centre.x - 0.35f * radius, centre.y - radius,
            lower, centre.x + 0.35f * radius, centre.y + radius,
            false};
}

void drawShadow(juce::Graphics& g, juce::Point<float> centre, float radius) {
    const juce::Point<float> below = centre.translated(0.0f, 0.10f * radius);
    const float reach = 1.22f * radius;
    juce::ColourGradient shade(juce::Colours::black.withAlpha(0.65f), below.x, below.y,
                               juce::Colours::transparentBlack, below.x + reach, below.y, true);
    shade.addColour(0.72, juce::Colours::black.withAlpha(0.6f));
    g.setGradientFill(shade);
    g.fillEllipse(circle(below, reach));
}

/// The teeth of a grip.
void drawKnurls(juce::Graphics& g, juce::Point<float> centre, float radius, juce::Colour face) {
    constexpr int teeth = 40;
    for (int i = 0; i < teeth; ++i) {
        const float angle = static_cast<float>(i) * 2.0f * pi / static_cast<float>(teeth);
        juce::Path tooth;
        tooth.addPieSegment(circle(centre, radius), angle, angle + pi / static_cast<float>(teeth),
                            0.8f);
        // Those that face the light are bright.
        const float light = 0.5f + 0.5f * std::cos(angle + 0.35f);
        g.setColour(face.darker(0.75f).interpolatedWith(face.brighter(0.7f), light));
        g.fillPath(tooth);
    }
}

} // namespace

void DrawnKnob::setLook(const KnobLook& newLook) {
    look = newLook;
    body.drop();
}

float DrawnKnob::angleOf(float value) {
    return (value - 0.5f) * 1.5f * pi;
}

void DrawnKnob::draw(juce::Graphics& g, juce::Rectangle<int> area, float value) {
    body.draw(g, area, [this, area](juce::Graphics& drawing) {
        drawBody(drawing, area.withZeroOrigin().toFloat());
    });
    const float size = static_cast<float>(juce::jmin(area.getWidth(), area.getHeight()));
    const juce::Point<float> centre = area.toFloat().getCentre().translated(0.0f, -1.0f);
    if (look.shape == Shape::pointer)
        drawPointer(g, centre, size * radiusOfSize, angleOf(value));
    else
        drawLine(g, centre, size * radiusOfSize, angleOf(value));
}

void DrawnKnob::drawBody(juce::Graphics& g, juce::Rectangle<float> area) const {
    const juce::Point<float> centre = area.getCentre().translated(0.0f, -1.0f);
    const float radius = juce::jmin(area.getWidth(), area.getHeight()) * radiusOfSize;
    const juce::Colour face = look.face;
    if (look.shape == Shape::flat) {
        g.setColour(face.withAlpha(0.6f));
        g.fillEllipse(circle(centre, radius));
        g.setColour(face.contrasting(0.4f));
        g.drawEllipse(circle(centre, radius - 0.5f), 1.0f);
        return;
    }
    drawShadow(g, centre, radius);
    g.setGradientFill(litGradient(centre, radius, face.brighter(0.25f), face.darker(0.9f)));
    g.fillEllipse(circle(centre, radius));
    if (look.shape == Shape::knurled)
        drawKnurls(g, centre, radius, face);
    g.setColour(juce::Colours::black.withAlpha(0.7f));
    g.drawEllipse(circle(centre, radius - 0.5f), 1.0f);
    drawCap(g, centre, radius * (look.shape == Shape::pointer ? 0.9f : 0.8f));
}

/// Turned metal: two bright sectors opposite each other, as light falls on fine grooves.
void DrawnKnob::drawCap(juce::Graphics& g, juce::Point<float> centre, float radius) const {
    const juce::Colour face = look.face;
    const bool isPlastic = look.shape == Shape::pointer;
    g.setGradientFill(
        litGradient(centre, radius, face.brighter(isPlastic ? 0.22f : 0.45f), face.darker(0.35f)));
    g.fillEllipse(circle(centre, radius));
    if (!isPlastic) {
        constexpr int sectors = 180;
        for (int i = 0; i < sectors; ++i) {
            const float angle = static_cast<float>(i) * 2.0f * pi / static_cast<float>(sectors);
            const float light = std::pow(std::abs(std::cos(angle - 0.6f)), 6.0f);
            juce::Path sector;
            sector.addPieSegment(circle(centre, radius - 0.5f), angle,
                                 angle + 2.2f * pi / static_cast<float>(sectors), 0.0f);
            g.setColour(juce::Colours::white.withAlpha(0.22f * light));
            g.fillPath(sector);
        }
    }
    g.setGradientFill(litGradient(centre, radius, juce::Colours::white.withAlpha(0.45f),
                                  juce::Colours::black.withAlpha(0.5f)));
    g.drawEllipse(circle(centre, radius - 0.5f), 1.2f);
}

void DrawnKnob::drawLine(juce::Graphics& g, juce::Point<float> centre, float radius,
                         float angle) const {
    const float width = juce::jmax(2.0f, 0.12f * radius);
    juce::Path line;
    line.addRoundedRectangle(-width / 2.0f, -0.78f * radius, width, 0.48f * radius, width / 2.0f);
    const auto turned = juce::AffineTransform::rotation(angle).translated(centre);
    const bool isBright = look.face.getPerceivedBrightness() > 0.6f;
    // An edge on the side away from the light makes a groove of it.
    g.setColour((isBright ? juce::Colours::white : juce::Colours::black).withAlpha(0.55f));
    g.fillPath(line, turned.translated(0.0f, isBright ? 1.0f : -1.0f));
    g.setColour(isBright ? juce::Colour(28, 28, 30) : juce::Colour(245, 245, 240));
    g.fillPath(line, turned);
}

void DrawnKnob::drawPointer(juce::Graphics& g, juce::Point<float> centre, float radius,
                            float angle) const {
    const float half = 0.30f * radius;
    juce::Path bar;
    bar.startNewSubPath(0.0f, -0.97f * radius);
    bar.quadraticTo(half * 0.55f, -0.72f * radius, half * 0.85f, -0.35f * radius);
    bar.quadraticTo(half * 1.25f, 0.2f * radius, half * 0.95f, 0.62f * radius);
    bar.quadraticTo(0.0f, 0.95f * radius, -half * 0.95f, 0.62f * radius);
    bar.quadraticTo(-half * 1.25f, 0.2f * radius, -half * 0.85f, -0.35f * radius);
    bar.quadraticTo(-half * 0.55f, -0.72f * radius, 0.0f, -0.97f * radius);
    bar.closeSubPath();
    const auto turned = juce::AffineTransform::rotation(angle).translated(centre);
    g.setColour(juce::Colours::black.withAlpha(0.45f));
    g.fillPath(bar, turned.translated(0.0f, 0.07f * radius));
    g.setGradientFill(
        litGradient(centre, radius, look.face.brighter(0.75f), look.face.darker(0.5f)));
    g.fillPath(bar, turned);
    g.setColour(juce::Colours::white.withAlpha(0.16f));
    g.strokePath(bar, juce::PathStrokeType(1.0f), turned);
    const float width = juce::jmax(2.0f, 0.09f * radius);
    juce::Path line;
    line.addRoundedRectangle(-width / 2.0f, -0.92f * radius, width, 0.66f * radius, width / 2.0f);
    g.setColour(juce::Colour(250, 250, 246));
    g.fillPath(line, turned);
}
