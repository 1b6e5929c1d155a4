// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/SegmentRow.h"

#include <algorithm>
#include <cstddef>

std::vector<RowSegment> segmentRow(juce::Rectangle<int> area, int count) {
    std::vector<RowSegment> row;
    if (count <= 0)
        return row;
    row.reserve(static_cast<std::size_t>(count));
    int left = area.getX();
    for (int i = 0; i < count; ++i) {
        const int width =
            std::max(0, std::min(area.getRight() - left, area.getWidth() / count + 1));
        RowSegment segment;
        segment.area = {left, area.getY(), width, area.getHeight()};
        segment.joined.left = i > 0;
        segment.joined.right = i < count - 1;
        row.push_back(segment);
        left += std::max(0, width - 1);
    }
    return row;
}

void drawSegmentJoint(juce::Graphics& g, juce::Rectangle<int> area, JoinedEdges joined) {
    if (!joined.left)
        return;
    g.setColour(juce::Colours::black.withAlpha(0.35f));
    g.fillRect(area.removeFromLeft(1));
}
