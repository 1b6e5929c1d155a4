// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HistoryTrace.h"

#include <algorithm>
#include <cmath>

HistoryTrace::HistoryTrace(juce::Colour lineColour, juce::Rectangle<float> wholeArea,
                           float lineThickness)
    : colour(lineColour)
    , area(wholeArea)
    , thickness(lineThickness) {
    opacities.point1 = area.getTopLeft();
    opacities.point2 = area.getTopRight();
}

void HistoryTrace::lineTo(juce::Point<float> point, float opacity) {
    const juce::Colour next = colour.withAlpha(opacity);
    if (!penIsDown || next.isTransparent()) {
        pieceIsOpen = false;
    } else {
        // How far a steep piece is left and right of its ends, by its thickness.
        const float length = last.getDistanceFrom(point);
        const float reach =
            length > 0.0f ? 0.5f * thickness * std::abs(point.y - last.y) / length : 0.0f;
        if (!pieceIsOpen) {
            path.startNewSubPath(last);
            pieceReach = 0.0f;
        }
        pieceIsOpen = true;
        path.lineTo(point);
        // The brighter of two keeps its shape.
        setOpacityAt(next.getAlpha() > piece.getAlpha() ? last.x - reach : last.x + pieceReach,
                     next);
        pieceReach = reach;
    }
    penIsDown = true;
    last = point;
}

void HistoryTrace::setOpacityAt(float x, juce::Colour next) {
    const bool isFirst = opacities.getNumColours() == 0;
    if (!isFirst && next == piece)
        return;
    const double place = static_cast<double>((x - area.getX()) / area.getWidth());
    lastStep = std::clamp(place, lastStep, 1.0);
    if (isFirst || lastStep <= 0.0) {
        opacities.addColour(0.0, next);
    } else {
        // Two at one place: a step.
        opacities.addColour(lastStep, piece);
        opacities.addColour(lastStep, next);
    }
    piece = next;
}

void HistoryTrace::draw(juce::Graphics& g) {
    if (path.isEmpty() || area.isEmpty())
        return;
    opacities.addColour(1.0, piece);
    g.setGradientFill(opacities);
    g.strokePath(path, juce::PathStrokeType(thickness, juce::PathStrokeType::curved));
}
