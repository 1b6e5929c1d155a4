// SPDX-License-Identifier: GPL-3.0-or-later
// Where the parts of the generic editor go: a grid of cells, one for each parameter, group by
// group under headings, with the meters' panel to its right, or below it where that is too narrow.
// Numbers alone, in design units, so that it can be tested for any plug-in. [any thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <vector>

struct GenericLayoutInput {
    int width = 0;
    std::vector<int> groupSizes; ///< parameters of each group; headings from two groups on
    int panelWidth = 0;          ///< that the meters want; 0 without meters
    int panelHeight = 0;         ///< the least that they can do with
};

struct GenericLayout {
    static constexpr int margin = 12;
    static constexpr int gap = 8;
    static constexpr int titleHeight = 40;
    static constexpr int headingHeight = 24;
    static constexpr int cellHeight = 146;
    static constexpr int narrowestCell = 116;
    static constexpr int widestCell = 168;
    static constexpr int highestPanel = 480;

    juce::Rectangle<int> title;
    std::vector<juce::Rectangle<int>> headings; ///< one a group; none for a single group
    std::vector<juce::Rectangle<int>> cells;    ///< in order, row by row
    juce::Rectangle<int> panel;                 ///< empty without meters
    int columns = 0;
    int height = 0; ///< that all of it takes
};

[[nodiscard]] GenericLayout layOutGenericEditor(const GenericLayoutInput& input);

/// The width at which the grid has pleasant proportions.
[[nodiscard]] int preferredGenericWidth(const GenericLayoutInput& input);
