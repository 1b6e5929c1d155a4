// SPDX-License-Identifier: GPL-3.0-or-later
// The grid for any number of parameters, groups and meters, at any width.
#include "widgets/generic/GenericLayout.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

constexpr int panelWidth = 104;
constexpr int panelHeight = 200;

GenericLayoutInput inputOf(int width, std::vector<int> groups, bool hasMeters = true) {
    return {width, std::move(groups), hasMeters ? panelWidth : 0, hasMeters ? panelHeight : 0};
}

std::vector<juce::Rectangle<int>> allParts(const GenericLayout& layout) {
    std::vector<juce::Rectangle<int>> parts = layout.cells;
    parts.insert(parts.end(), layout.headings.begin(), layout.headings.end());
    parts.push_back(layout.title);
    if (!layout.panel.isEmpty())
        parts.push_back(layout.panel);
    return parts;
}

} // namespace

TEST(GenericLayout, fifteenParametersAndMetersMakeThreeRowsOfFive) {
    const GenericLayoutInput input = inputOf(768, {15});
    // Five cells of 120 with four gaps of 8, two margins of 12, 8 and 104 for the meters.
    EXPECT_EQ(preferredGenericWidth(input), 768);
    const GenericLayout layout = layOutGenericEditor(input);
    EXPECT_EQ(layout.columns, 5);
    ASSERT_EQ(layout.cells.size(), 15u);
    EXPECT_EQ(layout.cells[0], juce::Rectangle<int>(12, 52, 120, 146));
    EXPECT_EQ(layout.cells[4], juce::Rectangle<int>(524, 52, 120, 146));
    EXPECT_EQ(layout.cells[5], juce::Rectangle<int>(12, 206, 120, 146));
    EXPECT_EQ(layout.cells[14].getBottom(), 506);
    EXPECT_EQ(layout.panel, juce::Rectangle<int>(652, 52, 104, 454));
    EXPECT_EQ(layout.height, 518);
    EXPECT_TRUE(layout.headings.empty());
}

TEST(GenericLayout, nothingOverlapsOrSticksOutAtAnyWidth) {
    for (const std::vector<int>& groups :
         {std::vector<int>{}, {1}, {2}, {15}, {200}, {4, 4, 2, 5}, {1, 1, 1}, {0, 7}}) {
        for (int width = 60; width < 2000; width += 37) {
            for (const bool hasMeters : {false, true}) {
                const GenericLayout layout = layOutGenericEditor(inputOf(width, groups, hasMeters));
                const juce::Rectangle<int> all(0, 0, width, layout.height);
                const auto parts = allParts(layout);
                EXPECT_EQ(layout.cells.size(),
                          std::accumulate(groups.begin(), groups.end(), std::size_t{0}));
                for (std::size_t i = 0; i < parts.size(); ++i) {
                    ASSERT_TRUE(all.contains(parts[i])) << width << ": " << parts[i].toString();
                    for (std::size_t k = 0; k < i; ++k)
                        ASSERT_FALSE(parts[i].intersects(parts[k])) << width;
                }
            }
        }
    }
}

TEST(GenericLayout, rowsOfAGroupAreFilledAsEvenlyAsCanBe) {
    // Six would fit; twelve in two rows of six, seven in two of four.
    EXPECT_EQ(layOutGenericEditor(inputOf(800, {12}, false)).columns, 6);
    EXPECT_EQ(layOutGenericEditor(inputOf(800, {7}, false)).columns, 4);
    EXPECT_EQ(layOutGenericEditor(inputOf(800, {3}, false)).columns, 3);
    EXPECT_EQ(layOutGenericEditor(inputOf(100, {3}, false)).columns, 1);
}

TEST(GenericLayout, aFewCellsDoNotGrowBeyondWhatLooksWell) {
    const GenericLayout layout = layOutGenericEditor(inputOf(1600, {2}));
    EXPECT_EQ(layout.cells[1].getWidth(), GenericLayout::widestCell);
}

TEST(GenericLayout, groupsHaveHeadingsWhenThereAreSeveral) {
    const GenericLayout layout = layOutGenericEditor(inputOf(760, {5, 6}));
    ASSERT_EQ(layout.headings.size(), 2u);
    EXPECT_EQ(layout.headings[0].getY(), 52);
    EXPECT_EQ(layout.cells[0].getY(), 76);
    EXPECT_EQ(layout.headings[1].getY(), layout.cells[4].getBottom() + 8);
    EXPECT_EQ(layout.cells[5].getPosition(), juce::Point<int>(12, layout.headings[1].getBottom()));
}

TEST(GenericLayout, metersGoBelowWhereTheyWouldLeaveNoRoomBesideThem) {
    const GenericLayout wide = layOutGenericEditor(inputOf(12 + 116 + 8 + 104 + 12, {3}));
    EXPECT_GT(wide.panel.getX(), wide.cells[0].getRight());
    const GenericLayout narrow = layOutGenericEditor(inputOf(12 + 115 + 8 + 104 + 12, {3}));
    EXPECT_GT(narrow.panel.getY(), narrow.cells[2].getBottom());
    EXPECT_EQ(narrow.panel.getHeight(), panelHeight);
}

TEST(GenericLayout, metersAreNotTallerThanTheyNeedToBe) {
    EXPECT_EQ(layOutGenericEditor(inputOf(760, {1})).panel.getHeight(), panelHeight);
    EXPECT_EQ(layOutGenericEditor(inputOf(760, {200})).panel.getHeight(),
              GenericLayout::highestPanel);
}

TEST(GenericLayout, withoutParametersThereIsRoomToSaySo) {
    const GenericLayout layout = layOutGenericEditor(inputOf(400, {}, false));
    EXPECT_TRUE(layout.cells.empty());
    EXPECT_EQ(layout.height, 40 + 12 + 146 + 12);
}

TEST(GenericLayout, thePreferredWidthGrowsWithTheNumberUpToSevenColumns) {
    EXPECT_EQ(preferredGenericWidth(inputOf(0, {1}, false)), 360);
    EXPECT_EQ(preferredGenericWidth(inputOf(0, {200}, false)), 24 + 7 * 120 + 6 * 8);
    EXPECT_EQ(preferredGenericWidth(inputOf(0, {100, 100}, false)), 24 + 7 * 120 + 6 * 8);
}
