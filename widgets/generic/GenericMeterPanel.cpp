// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericMeterPanel.h"

#include "widgets/base/QMColorSource.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/generic/GenericDrawing.h"
#include "widgets/generic/GenericPitchDisplay.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/meters/QMMeterWidget.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>
#include <utility>

namespace {

// Design units.
constexpr int room = 8; ///< inside the plate
constexpr int barWidth = 14;
constexpr int scaleWidth = 28;
constexpr int nameHeight = 18;
constexpr int pairWidth = 88; ///< with room for the names below
constexpr int leastBarHeight = 120;
constexpr int pitchHeight = 40;
constexpr int pitchGap = 6;
constexpr int mostPairsInARow = 4;
constexpr float nameFont = 12.0f;

/// Levels of signals and those of parameters.
bool isLevel(std::uint32_t kind) {
    return kind >= 1 && kind <= 4;
}

} // namespace

GenericMeterPanel::GenericMeterPanel(const std::vector<GenericMeter>& meters) {
    for (const GenericMeter& meter : meters) {
        if (isLevel(meter.kind))
            addLevel(meter);
        else if (meter.kind == GenericPitchDisplay::kind)
            addPitches(meter);
    }
    for (int i = 0; i < pairCount(); ++i) {
        scales.push_back(std::make_unique<QMMeterCalibrationWidget>());
        addAndMakeVisible(*scales.back());
    }
    setInterceptsMouseClicks(false, true);
}

GenericMeterPanel::~GenericMeterPanel() = default;

void GenericMeterPanel::addLevel(const GenericMeter& meter) {
    Level level{meter.name, std::make_unique<QMMeterWidget>(), {}};
    level.meter->bindMeterRecord(0, meter.id, meter.kind, meter.record);
    level.meter->setName(meter.name);
    level.meter->setTitle(meter.name);
    level.meter->setTooltip(meter.name + ": peak, mean and held peak in dB");
    addAndMakeVisible(*level.meter);
    levels.push_back(std::move(level));
}

void GenericMeterPanel::addPitches(const GenericMeter& meter) {
    auto display = std::make_unique<GenericPitchDisplay>();
    display->bindMeterRecord(0, meter.id, meter.kind, meter.record);
    display->setName(meter.name);
    display->setTitle(meter.name);
    display->setTooltip(meter.name);
    addAndMakeVisible(*display);
    pitches.push_back(std::move(display));
}

int GenericMeterPanel::pairCount() const {
    return static_cast<int>(levels.size() + 1) / 2;
}

int GenericMeterPanel::pairsInARow() const {
    return std::min(std::max(1, pairCount()), mostPairsInARow);
}

int GenericMeterPanel::rowCount() const {
    return (pairCount() + mostPairsInARow - 1) / mostPairsInARow;
}

int GenericMeterPanel::preferredWidth() const {
    return levels.empty() && pitches.empty() ? 0 : pairsInARow() * pairWidth + 2 * room;
}

int GenericMeterPanel::leastHeight() const {
    const int pitchRows = static_cast<int>(pitches.size()) * (pitchHeight + pitchGap);
    return 2 * room + rowCount() * (leastBarHeight + nameHeight) + pitchRows;
}

juce::Rectangle<int> GenericMeterPanel::toPixels(juce::Rectangle<int> design) const {
    return WidgetPlacement::scaled(design, factor) - getPosition();
}

void GenericMeterPanel::place(juce::Rectangle<int> design, float magnification) {
    factor = magnification;
    setBounds(WidgetPlacement::scaled(design, factor));
    juce::Rectangle<int> inner = design.reduced(room);
    for (auto display = pitches.rbegin(); display != pitches.rend(); ++display) {
        const juce::Rectangle<int> area = inner.removeFromBottom(pitchHeight);
        inner.removeFromBottom(pitchGap);
        (*display)->setMagnification(factor);
        (*display)->setDesignArea(area);
        (*display)->setBounds(toPixels(area));
    }
    if (levels.empty())
        return;
    const int perRow = pairsInARow();
    const int width = inner.getWidth() / perRow;
    const int height = inner.getHeight() / rowCount();
    for (int i = 0; i < pairCount(); ++i) {
        placePair(static_cast<std::size_t>(i), {inner.getX() + i % perRow * width,
                                                inner.getY() + i / perRow * height, width, height});
    }
    repaint();
}

void GenericMeterPanel::placePair(std::size_t pair, juce::Rectangle<int> design) {
    const bool isWhole = 2 * pair + 1 < levels.size();
    juce::Rectangle<int> names = design.removeFromBottom(nameHeight);
    const int taken = barWidth + scaleWidth + (isWhole ? barWidth : 0);
    juce::Rectangle<int> row =
        design.withSizeKeepingCentre(std::min(taken, design.getWidth()), design.getHeight());
    const juce::Rectangle<int> first = row.removeFromLeft(barWidth);
    const juce::Rectangle<int> scale = row.removeFromLeft(scaleWidth);
    const int half = names.getWidth() / 2;
    placeLevel(2 * pair, first, isWhole ? names.withWidth(half) : names);
    if (isWhole)
        placeLevel(2 * pair + 1, row, names.withTrimmedLeft(half));
    scales[pair]->setMagnification(factor);
    scales[pair]->setDesignArea(scale);
    scales[pair]->setBounds(toPixels(scale));
}

void GenericMeterPanel::placeLevel(std::size_t level, juce::Rectangle<int> bar,
                                   juce::Rectangle<int> nameRoom) {
    QMMeterWidget& meter = *levels[level].meter;
    meter.setMagnification(factor);
    meter.setDesignArea(bar);
    meter.setBounds(toPixels(bar));
    levels[level].nameArea = toPixels(nameRoom);
}

std::vector<QMWidget*> GenericMeterPanel::displayWidgets() const {
    std::vector<QMWidget*> widgets;
    for (const Level& level : levels)
        widgets.push_back(level.meter.get());
    for (const auto& display : pitches)
        widgets.push_back(display.get());
    return widgets;
}

void GenericMeterPanel::paint(juce::Graphics& g) {
    GenericDrawing::drawPlate(g, getLocalBounds().toFloat(), factor);
    const juce::Font font = WidgetStyle::get().font(TypefaceStyle::plain, nameFont * factor);
    g.setColour(GenericDrawing::coloursOf(*this).getContrastColour());
    for (const Level& level : levels)
        GenericDrawing::fittedText(level.name, font, level.nameArea.toFloat(), 1).draw(g);
}
