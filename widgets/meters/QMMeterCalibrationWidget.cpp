// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/QMMeterCalibrationWidget.h"

#include "widgets/drawing/WidgetStyle.h"
#include "widgets/meters/MeterLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr float smallestLabel = 7.0f; ///< pixels; below it digits cannot be told apart
constexpr float labelOfBreadth = 0.42f;
constexpr float distanceFromLabel = 1.5f; ///< pixels, of lines
/// Of the breadth of an upright scale, what labels may fill: layouts let meters overlap the rest.
constexpr float labelsOfBreadth = 0.7f;
constexpr float beyond =
    1.0f; ///< pixels that a label may have more; they are its ends' antialiasing

// Design units.
constexpr float largestLabel = 11.0f;
constexpr float lineLength = 3.0f;
constexpr float closestLines = 2.0f;

} // namespace

QMMeterCalibrationWidget::QMMeterCalibrationWidget()
    : QMWidget(0) {
    setInterceptsMouseClicks(false, false);
}

void QMMeterCalibrationWidget::setScale(std::size_t index) {
    renderer.setScale(index);
    placeMarks();
    repaint();
}

void QMMeterCalibrationWidget::setMapping(const MeterMapping& mapping) {
    renderer.setMapping(mapping);
    placeMarks();
    repaint();
}

void QMMeterCalibrationWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    resized();
}

void QMMeterCalibrationWidget::resized() {
    renderer.setArea(meterLayoutIn(getLocalArea(), getMagnification()).meter);
    placeMarks();
}

float QMMeterCalibrationWidget::fontHeight() const {
    const auto breadth = static_cast<float>(std::min(getWidth(), getHeight()));
    const float largest = std::max(smallestLabel, largestLabel * getMagnification());
    return std::clamp(breadth * labelOfBreadth, smallestLabel, largest);
}

juce::Font QMMeterCalibrationWidget::font() const {
    return WidgetStyle::get().font(TypefaceStyle::plain, fontHeight());
}

float QMMeterCalibrationWidget::spaceOfLabel(const char* label) const {
    return renderer.isVertical() ? fontHeight() * 0.95f
                                 : font().getStringWidthFloat(label) + fontHeight() * 0.4f;
}

bool QMMeterCalibrationWidget::canShow(const char* label) const {
    if (*label == '\0')
        return false;
    return !renderer.isVertical() ||
           font().getStringWidthFloat(label) <= static_cast<float>(getWidth()) * labelsOfBreadth;
}

void QMMeterCalibrationWidget::placeMarks() {
    placed.clear();
    if (renderer.getArea().isEmpty())
        return;
    // Marks come from the loud end on.
    float lastLabel = std::numeric_limits<float>::infinity();
    bool hasRoomForLabels = true;
    for (const MeterMark& mark : renderer.getScale().marks) {
        const float position = renderer.positionOf(mark.level());
        const bool hasLabel = canShow(mark.label);
        if (hasLabel && std::abs(position - lastLabel) < spaceOfLabel(mark.label))
            hasRoomForLabels = false;
        const bool showsLabel = hasLabel && hasRoomForLabels;
        const bool tooClose = !placed.empty() && std::abs(position - placed.back().position) <
                                                     closestLines * getMagnification();
        if (tooClose && (!showsLabel || placed.back().showsLabel))
            continue;
        if (tooClose)
            placed.pop_back();
        if (showsLabel)
            lastLabel = position;
        placed.push_back({&mark, position, showsLabel});
    }
}

void QMMeterCalibrationWidget::paint(juce::Graphics& g) {
    g.setFont(font());
    for (const PlacedMark& mark : placed) {
        g.setColour(mark.showsLabel ? getContrastColour() : getContrastColourWeak());
        renderer.isVertical() ? drawVerticalMark(g, mark) : drawHorizontalMark(g, mark);
    }
}

int QMMeterCalibrationWidget::lineLengthBeside(float label) const {
    const float whole = lineLength * getMagnification();
    const auto breadth = static_cast<float>(std::min(getWidth(), getHeight()));
    const float left = (breadth - label) / 2.0f - distanceFromLabel;
    return static_cast<int>(label > 0.0f ? std::min(whole, left) : whole);
}

void QMMeterCalibrationWidget::drawVerticalMark(juce::Graphics& g, const PlacedMark& mark) const {
    const int y = std::min(juce::roundToInt(mark.position), renderer.getArea().getBottom() - 1);
    const char* const label = mark.showsLabel ? mark.mark->label : "";
    const int line = lineLengthBeside(g.getCurrentFont().getStringWidthFloat(label));
    if (line > 0) {
        g.fillRect(0, y, line, 1);
        g.fillRect(getWidth() - line, y, line, 1);
    }
    const float height = fontHeight();
    g.drawText(label,
               juce::Rectangle<float>(0.0f, mark.position - height / 2.0f,
                                      static_cast<float>(getWidth()), height),
               juce::Justification::centred, false);
}

void QMMeterCalibrationWidget::drawHorizontalMark(juce::Graphics& g, const PlacedMark& mark) const {
    const int x = std::min(juce::roundToInt(mark.position), renderer.getArea().getRight() - 1);
    const char* const label = mark.showsLabel ? mark.mark->label : "";
    const int line = lineLengthBeside(mark.showsLabel ? fontHeight() : 0.0f);
    if (line > 0) {
        g.fillRect(x, 0, 1, line);
        g.fillRect(x, getHeight() - line, 1, line);
    }
    const float width = spaceOfLabel(label);
    g.drawText(label,
               juce::Rectangle<float>(mark.position - width / 2.0f, 0.0f, width,
                                      static_cast<float>(getHeight())),
               juce::Justification::centred, false);
}
