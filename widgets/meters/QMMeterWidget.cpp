// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/QMMeterWidget.h"

#include "widgets/meters/MeterLayout.h"
#include "widgets/meters/MeterValueInterface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr int refreshMs = 30;

constexpr std::array<MeterRenderer::Preset, 5> presetsOfModes{{
    {2.0, 0.0, false},
    {0.0, 0.0, true},
    {0.0, 0.0, true},
    {0.0, 0.0, true},
    {0.0, 0.0, true},
}};

/// Meters of parameters among the kinds of meter records.
bool isKindOfParameter(std::uint32_t kind) {
    return kind >= 2 && kind <= 4;
}

/// A NaN would never equal itself, and the meter would draw for ever.
float levelOf(float word) {
    return std::isnan(word) ? 0.0f : word;
}

} // namespace

QMMeterWidget::QMMeterWidget(MeterData* sharedData, MeterClock timeSource)
    : QMWidget(2)
    , clock(timeSource ? std::move(timeSource) : systemMeterClock())
    , meterData(sharedData != nullptr ? sharedData : &ownData) {}

QMMeterWidget::~QMMeterWidget() = default;

MeterRenderer& QMMeterWidget::getRenderer() {
    if (renderer == nullptr) {
        renderer = std::make_unique<MeterRenderer>(clock);
        renderer->setPreset(presetsOfModes[static_cast<std::size_t>(mode)]);
        placeRenderer();
    }
    return *renderer;
}

void QMMeterWidget::placeRenderer() {
    const MeterLayout layout = meterLayoutIn(getLocalArea(), getMagnification());
    renderer->setArea(layout.meter, layout.lamp);
}

void QMMeterWidget::bindMeterRecord(std::uint32_t slot, FourCharCode, std::uint32_t kind,
                                    const NoxMeterRecord* record) {
    if (slot != 0)
        return;
    boundRecord = record;
    parameterMeter = isKindOfParameter(kind);
    if (boundRecord == nullptr)
        *meterData = {};
}

void QMMeterWidget::copyRecord() {
    if (boundRecord == nullptr)
        return;
    // The first of the values is the record's word 1.
    const float(&words)[6] = boundRecord->values;
    MeterData& data = *meterData;
    data.level[0] = levelOf(words[0]);
    data.hold[0] = levelOf(words[1]);
    data.level[1] = levelOf(words[2]);
    data.hold[1] = levelOf(words[3]);
    data.envelope = levelOf(words[4]);
    data.weighting = 0.0f;
    if (countsOverloads && !parameterMeter && (data.level[0] >= 1.0f || data.hold[0] >= 1.0f))
        ++data.overloads[1];
}

void QMMeterWidget::tick() {
    copyRecord();
    if (renderer != nullptr && renderer->needsRedraw(*meterData))
        repaint();
}

void QMMeterWidget::setRefreshesItself(bool flag) {
    flag ? startTimer(refreshMs) : stopTimer();
}

void QMMeterWidget::timerCallback() {
    tick();
}

void QMMeterWidget::setParameterValue(std::uint32_t slot, double value, bool notify) {
    if (slot == markerSlot && !std::isnan(value)) {
        markerLevelDb = value;
        markerLevel = std::pow(10.0, value / 10.0);
        repaintUnlessDeferred();
    } else if (slot == modeSlot && !std::isnan(value)) {
        setMode(value);
    }
    QMWidget::setParameterValue(slot, value, notify);
}

void QMMeterWidget::repaintUnlessDeferred() {
    if (!isDeferringUpdates())
        repaint();
}

void QMMeterWidget::setMode(double value) {
    const double last = static_cast<double>(presetsOfModes.size() - 1);
    mode = static_cast<std::int32_t>(std::clamp(value, 0.0, last));
    if (renderer != nullptr) {
        renderer->setPreset(presetsOfModes[static_cast<std::size_t>(mode)]);
        repaintUnlessDeferred();
    }
}

double QMMeterWidget::getSlotValue(std::uint32_t slot) const {
    switch (slot) {
    case markerSlot:
        return markerLevelDb;
    case modeSlot:
        return mode;
    default:
        return 0.0;
    }
}

void QMMeterWidget::setShowMarker(bool flag) {
    if (flag == showMarker)
        return;
    showMarker = flag;
    repaint();
}

void QMMeterWidget::setMarkerImage(const juce::Image& image) {
    markerImage = image;
    repaint();
}

std::int32_t QMMeterWidget::getMarkerPosition() {
    const MeterRenderer& drawing = getRenderer();
    const int begin = drawing.isVertical() ? drawing.getArea().getY() : drawing.getArea().getX();
    return juce::roundToInt(drawing.positionOf(markerLevel)) - begin;
}

juce::String QMMeterWidget::getDisplayText() const {
    return meterLevelText(meterData->level[0]);
}

void QMMeterWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    resized();
}

void QMMeterWidget::resized() {
    if (renderer != nullptr)
        placeRenderer();
}

void QMMeterWidget::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(0.45f);
    getRenderer().paint(g, *meterData);
    if (showMarker)
        drawMarker(g);
    if (!isEnabled())
        g.endTransparencyLayer();
}

void QMMeterWidget::drawMarker(juce::Graphics& g) {
    const juce::Rectangle<int> area = getRenderer().getArea();
    const bool vertical = getRenderer().isVertical();
    const auto along = static_cast<float>(getMarkerPosition());
    const juce::Point<float> at =
        vertical ? juce::Point<float>(area.toFloat().getCentreX(), area.toFloat().getY() + along)
                 : juce::Point<float>(area.toFloat().getX() + along, area.toFloat().getCentreY());
    if (markerImage.isValid()) {
        g.drawImageAt(markerImage, juce::roundToInt(at.x) - markerImage.getWidth() / 2,
                      juce::roundToInt(at.y) - markerImage.getHeight() / 2);
        return;
    }
    // An arrow head from each side, as long as a third of the bar is wide.
    const float reach = static_cast<float>(vertical ? area.getWidth() : area.getHeight()) / 2.0f;
    const float arrow = reach * 2.0f / 3.0f;
    juce::Path heads;
    for (const float side : {-1.0f, 1.0f}) {
        heads.addTriangle({side * reach, -arrow / 2.0f}, {side * reach, arrow / 2.0f},
                          {side * (reach - arrow), 0.0f});
    }
    const float turn = vertical ? 0.0f : juce::MathConstants<float>::halfPi;
    g.setColour(juce::Colours::white.withAlpha(0.9f));
    g.fillPath(heads, juce::AffineTransform::rotation(turn).translated(at));
}

std::unique_ptr<juce::AccessibilityHandler> QMMeterWidget::createAccessibilityHandler() {
    return std::make_unique<juce::AccessibilityHandler>(
        *this, juce::AccessibilityRole::progressBar, juce::AccessibilityActions(),
        juce::AccessibilityHandler::Interfaces{std::make_unique<MeterValueInterface>(*meterData)});
}
