// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/SharedDrawing.h"

#include <algorithm>
#include <cstdint>

namespace {

/// As wide as its picture would be at this height, but at most as wide as the room.
int capWidth(const juce::Image& cap, int height, int room) {
    if (cap.isNull())
        return 0;
    const std::int64_t width = std::int64_t{cap.getWidth()} * height / cap.getHeight();
    return static_cast<int>(std::min<std::int64_t>(width, room));
}

void drawStretched(juce::Graphics& g, const juce::Image& image, juce::Rectangle<int> area) {
    if (image.isNull() || area.isEmpty())
        return;
    g.drawImage(image, area.getX(), area.getY(), area.getWidth(), area.getHeight(), 0, 0,
                image.getWidth(), image.getHeight());
}

} // namespace

void drawGlossyFrame(juce::Graphics& g, juce::Rectangle<int> bounds, const juce::Image& leftCap,
                     const juce::Image& middle, const juce::Image& rightCap) {
    if (bounds.isEmpty())
        return;
    const int left = capWidth(leftCap, bounds.getHeight(), bounds.getWidth());
    const int right = capWidth(rightCap, bounds.getHeight(), bounds.getWidth() - left);
    drawStretched(g, leftCap, bounds.removeFromLeft(left));
    drawStretched(g, rightCap, bounds.removeFromRight(right));
    drawStretched(g, middle, bounds);
}

void drawPill(juce::Graphics& g, juce::Rectangle<float> bounds, float cornerSize, juce::Colour base,
              juce::Colour derived, JoinedEdges joined) {
    if (bounds.isEmpty())
        return;
    juce::Path outline;
    outline.addRoundedRectangle(bounds.getX(), bounds.getY(), bounds.getWidth(), bounds.getHeight(),
                                cornerSize, cornerSize, !(joined.left || joined.top),
                                !(joined.right || joined.top), !(joined.left || joined.bottom),
                                !(joined.right || joined.bottom));
    g.setGradientFill(
        juce::ColourGradient::vertical(base, bounds.getY(), derived, bounds.getBottom()));
    g.fillPath(outline);
}
