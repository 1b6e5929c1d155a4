// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMEphemeralReadout.h"

#include "widgets/drawing/WidgetStyle.h"

#include <cmath>

namespace {

constexpr int tickMs = 20;
constexpr double opacityLostPerMs = 0.002;
constexpr int gapPixels = 2;
constexpr int insetPixels = 2;
constexpr float heightUnits = 20.0f;
constexpr float leastWidthUnits = 44.0f;
constexpr float fontUnits = 13.0f;
constexpr float backgroundOpacity = 0.8f;
constexpr float frameOpacity = 0.2f;

} // namespace

QMEphemeralReadout::QMEphemeralReadout(const juce::Component& control, float magnification,
                                       bool below)
    : scale(magnification)
    , isBelow(below) {
    setInterceptsMouseClicks(false, false);
    setAccessible(false);
    control.getParentComponent()->addAndMakeVisible(this);
}

QMEphemeralReadout::~QMEphemeralReadout() = default;

void QMEphemeralReadout::showText(const juce::String& newText, const juce::Component& control) {
    text = newText;
    const float textWidth =
        WidgetStyle::get().font(TypefaceStyle::plain, fontUnits * scale).getStringWidthFloat(text);
    // It grows with its text and keeps that width: a width that changes with every digit flickers.
    const float wanted = juce::jmax(leastWidthUnits * scale, textWidth + 8.0f * scale);
    const int width = juce::jmax(getWidth(), static_cast<int>(std::ceil(wanted)));
    const int height = static_cast<int>(std::round(heightUnits * scale));
    setBounds(placement(control.getBounds(), width, height, isBelow));
    repaint();
}

juce::Rectangle<int> QMEphemeralReadout::placement(juce::Rectangle<int> control, int width,
                                                   int height, bool below) {
    const int x = control.getX() + control.getWidth() / 2 - width / 2;
    const int y = below ? control.getBottom() + gapPixels : control.getY() - height - gapPixels;
    return {x, y, width, height};
}

void QMEphemeralReadout::startFading() {
    setAlpha(1.0f);
    fadeStart = juce::Time::getMillisecondCounter();
    isFading = true;
    startTimer(tickMs);
}

void QMEphemeralReadout::timerCallback() {
    if (getParentComponent() == nullptr) {
        delete this;
        return;
    }
    if (!isFading)
        return;
    const double elapsed = juce::Time::getMillisecondCounter() - fadeStart;
    const double opacity = 1.0 - elapsed * opacityLostPerMs;
    if (opacity < 0.0)
        delete this;
    else
        setAlpha(static_cast<float>(opacity));
}

void QMEphemeralReadout::parentHierarchyChanged() {
    // Not at once: some parents delete the children that they take out themselves.
    if (getParentComponent() == nullptr)
        startTimer(tickMs);
}

void QMEphemeralReadout::paint(juce::Graphics& g) {
    g.setColour(juce::Colour(24, 24, 24).withAlpha(backgroundOpacity));
    g.fillAll();
    g.setColour(juce::Colours::white.withAlpha(frameOpacity));
    g.drawRect(getLocalBounds(), 1);
    g.setColour(juce::Colour(240, 240, 240));
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, fontUnits * scale));
    g.drawText(text, getLocalBounds().reduced(insetPixels), juce::Justification::centred, false);
}
