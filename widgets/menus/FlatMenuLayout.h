// SPDX-License-Identifier: GPL-3.0-or-later
// Where the name, the item's text and the arrow of a flat menu go.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// What a flat menu shows, and where.
struct FlatMenuOptions {
    enum class Horizontal { left, centre, right };
    enum class Vertical { top, centre, bottom };

    Horizontal horizontalPlacement = Horizontal::left;
    Vertical verticalPlacement = Vertical::centre;
    bool showArrow = true; ///< when there is something to choose
    bool forceArrow = false;
    bool showItemText = true;
    bool drawBackground = false;
    bool arrowAtRight = false;
    bool hideLabel = false;

    /// The toolkit's flags of both placements.
    [[nodiscard]] juce::Justification justification() const;
};

/// In pixels.
struct FlatMenuMeasures {
    juce::Rectangle<float> bounds;
    float fontHeight = 0.0f;
    float nameWidth = 0.0f; ///< 0 without a name
    float textWidth = 0.0f;
    bool arrowIsActive = false;
};

struct FlatMenuLayout {
    juce::Rectangle<float> name;  ///< empty where it is not drawn
    juce::Rectangle<float> text;  ///< what is left for the item's text
    juce::Rectangle<float> arrow; ///< a square; empty where it is not drawn
};

/// [any thread]
[[nodiscard]] FlatMenuLayout layOutFlatMenu(const FlatMenuOptions& options,
                                            const FlatMenuMeasures& measures);
