// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/QMLEDBarGraph.h"

#include <algorithm>
#include <cmath>

namespace {

// Where the lamps turn yellow and red.
constexpr double yellowFrom = 0.7;
constexpr double redFrom = 0.9;
constexpr float unlitBrightness = 0.18f;

} // namespace

void QMLEDBarGraph::setSegmentCount(int count) {
    segmentCount = std::clamp(count, 1, mostSegments);
    repaint();
}

int QMLEDBarGraph::getLitCount() const {
    const double range = getSlotMaximum(0) - getSlotMinimum(0);
    if (!(range > 0.0))
        return 0;
    const double share = std::clamp((value - getSlotMinimum(0)) / range, 0.0, 1.0);
    return juce::roundToInt(share * segmentCount);
}

juce::Rectangle<int> QMLEDBarGraph::segmentArea(int index) const {
    const juce::Rectangle<int> area = getLocalArea();
    const bool vertical = area.getHeight() > area.getWidth();
    const int length = vertical ? area.getHeight() : area.getWidth();
    const int from = length * index / segmentCount;
    const int to = length * (index + 1) / segmentCount;
    // A dark line between neighbours, where there is room for one.
    const int lit = std::max(1, to - from - (to - from > 2 ? 1 : 0));
    return vertical ? juce::Rectangle<int>(0, length - from - lit, area.getWidth(), lit)
                    : juce::Rectangle<int>(from, 0, lit, area.getHeight());
}

void QMLEDBarGraph::setParameterValue(std::uint32_t slot, double newValue, bool notify) {
    if (slot == 0 && !std::isnan(newValue) && newValue != value) {
        const int before = getLitCount();
        value = newValue;
        if (getLitCount() != before && !isDeferringUpdates())
            repaint();
    }
    QMWidget::setParameterValue(slot, newValue, notify);
}

juce::Colour QMLEDBarGraph::colourOf(int index) const {
    const double place = (index + 0.5) / segmentCount;
    if (place >= redFrom)
        return {255, 0, 0};
    return place >= yellowFrom ? juce::Colour(255, 255, 0) : juce::Colour(0, 255, 0);
}

void QMLEDBarGraph::paint(juce::Graphics& g) {
    g.fillAll(juce::Colour(14, 15, 16));
    const int lit = getLitCount();
    for (int i = 0; i < segmentCount; ++i) {
        const juce::Colour colour = colourOf(i);
        g.setColour(i < lit ? colour : colour.withMultipliedBrightness(unlitBrightness));
        g.fillRect(segmentArea(i));
    }
}
