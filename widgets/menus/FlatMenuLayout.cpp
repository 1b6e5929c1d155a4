// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/FlatMenuLayout.h"

#include <algorithm>

using Horizontal = FlatMenuOptions::Horizontal;
using Vertical = FlatMenuOptions::Vertical;

namespace {

constexpr float arrowToFont = 1.1f;
constexpr float gapOnBackground = 8.0f;

float arrowLeft(const FlatMenuOptions& options, const FlatMenuMeasures& measures,
                juce::Rectangle<float> textArea, float size) {
    const float rightmost = measures.bounds.getRight() - size;
    if (options.arrowAtRight || options.horizontalPlacement == Horizontal::right)
        return rightmost;
    float left = textArea.getX() + measures.textWidth;
    if (options.horizontalPlacement == Horizontal::centre) {
        left = measures.bounds.getCentreX() + measures.textWidth / 2.0f - 2.0f;
        if (options.forceArrow)
            left -= size / 4.0f;
    }
    // A text that is too long is shortened; the arrow stays in sight.
    return std::min(left, rightmost);
}

} // namespace

juce::Justification FlatMenuOptions::justification() const {
    using Flags = juce::Justification;
    int flags = Flags::horizontallyCentred;
    if (horizontalPlacement == Horizontal::left)
        flags = Flags::left;
    else if (horizontalPlacement == Horizontal::right)
        flags = Flags::right;
    if (verticalPlacement == Vertical::top)
        flags |= Flags::top;
    else if (verticalPlacement == Vertical::bottom)
        flags |= Flags::bottom;
    else
        flags |= Flags::verticallyCentred;
    return flags;
}

FlatMenuLayout layOutFlatMenu(const FlatMenuOptions& options, const FlatMenuMeasures& measures) {
    const float size = arrowToFont * measures.fontHeight;
    FlatMenuLayout layout;
    layout.text = measures.bounds;
    if (!options.hideLabel && measures.nameWidth > 0.0f) {
        layout.name =
            layout.text.removeFromLeft(std::min(measures.nameWidth, measures.bounds.getWidth()));
        if (options.drawBackground)
            layout.text.removeFromLeft(gapOnBackground);
    }
    if (measures.arrowIsActive && options.horizontalPlacement == Horizontal::right)
        layout.text.removeFromRight(size);
    if (options.forceArrow && options.horizontalPlacement == Horizontal::centre)
        layout.text.removeFromRight(size / 2.0f);
    if (measures.arrowIsActive)
        layout.arrow = {arrowLeft(options, measures, layout.text, size),
                        measures.bounds.getCentreY() - size / 2.0f, size, size};
    return layout;
}
