// SPDX-License-Identifier: GPL-3.0-or-later
// A row of segments that look like one button: neighbours share the line between them, and only the
// row's outer ends are round.
#pragma once

#include "widgets/drawing/SharedDrawing.h"

#include <juce_graphics/juce_graphics.h>

#include <vector>

struct RowSegment {
    juce::Rectangle<int> area;
    JoinedEdges joined;
};

/// Neighbours overlap by one pixel. What the division leaves over stays empty at the right end.
/// [any thread]
[[nodiscard]] std::vector<RowSegment> segmentRow(juce::Rectangle<int> area, int count);

/// The line between a segment and the one before it; nothing for the first.
void drawSegmentJoint(juce::Graphics& g, juce::Rectangle<int> area, JoinedEdges joined);
