// SPDX-License-Identifier: GPL-3.0-or-later
// Design units and pixels, the text of a layout table, lining up areas.
#include "widgets/ui/LayoutAlignment.h"
#include "widgets/ui/LayoutDump.h"
#include "widgets/ui/WidgetPlacement.h"

#include <gtest/gtest.h>

namespace {

using Area = juce::Rectangle<int>;

std::vector<Area> aligned(std::vector<Area> areas, LayoutAlignment alignment) {
    align(areas, alignment);
    return areas;
}

/// Centres at 25 and 102 across (the odd width's half cut off), at 15 and 45 down.
const std::vector<Area> twoAreas{{10, 5, 30, 20}, {100, 40, 5, 10}};

} // namespace

TEST(WidgetPlacement, roundsEachEdgeByItself) {
    // 1.2 times 7, 3, 11, 12 is 8.4, 3.6, 13.2, 14.4: 8, 4, 13, 14.
    EXPECT_EQ(WidgetPlacement::scaled({7, 3, 4, 9}, 1.2F), Area(8, 4, 5, 10));
}

TEST(WidgetPlacement, leavesNoGapBetweenAreasThatTouch) {
    for (const float magnification : {0.4F, 0.7203390F, 0.84F, 1.2F, 2.5F}) {
        for (int edge = 1; edge < 100; ++edge) {
            const Area left = WidgetPlacement::scaled({0, 0, edge, 1}, magnification);
            const Area right = WidgetPlacement::scaled({edge, 0, 100 - edge, 1}, magnification);
            EXPECT_EQ(left.getRight(), right.getX());
        }
    }
}

TEST(WidgetPlacement, unscalesToTheSmallestDesignAreaAroundThePixels) {
    // 8 / 1.2 = 6.67, 4 / 1.2 = 3.33, 13 / 1.2 = 10.83, 14 / 1.2 = 11.67.
    EXPECT_EQ(WidgetPlacement::unscaled({8, 4, 5, 10}, 1.2F), Area(6, 3, 5, 9));
    EXPECT_EQ(WidgetPlacement::unscaled({7, 3, 4, 9}, 1.0F), Area(7, 3, 4, 9));
}

TEST(LayoutDump, writesTheTableAsItStandsInASource) {
    const std::vector<ZulControlAreaDescriptor> entries{{fourCharCode("afre"), 60, 20, 80, 100},
                                                        {fourCharCode("bkgd"), 0, 1234, -5, 12345}};
    EXPECT_EQ(layoutTableText(entries), "static const\n"
                                        "ZulControlAreaDescriptor = control_areas[] = {\n"
                                        "\t{'afre', {  60,   20,   80,  100}},\n"
                                        "\t{'bkgd', {   0, 1234,   -5, 12345}},\n"
                                        "};\n");
}

TEST(LayoutDump, writesAnEmptyTableForNoEntries) {
    EXPECT_EQ(layoutTableText({}),
              "static const\nZulControlAreaDescriptor = control_areas[] = {\n};\n");
}

TEST(LayoutAlignment, movesEdgesToTheOutermostOfThem) {
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::tops),
              (std::vector<Area>{{10, 5, 30, 20}, {100, 5, 5, 10}}));
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::bottoms),
              (std::vector<Area>{{10, 30, 30, 20}, {100, 40, 5, 10}}));
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::lefts),
              (std::vector<Area>{{10, 5, 30, 20}, {10, 40, 5, 10}}));
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::rights),
              (std::vector<Area>{{75, 5, 30, 20}, {100, 40, 5, 10}}));
}

TEST(LayoutAlignment, movesCentresToTheirAverage) {
    // (25 + 102) / 2 = 63, cut off.
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::horizontalCentres),
              (std::vector<Area>{{48, 5, 30, 20}, {61, 40, 5, 10}}));
    // (15 + 45) / 2 = 30.
    EXPECT_EQ(aligned(twoAreas, LayoutAlignment::verticalCentres),
              (std::vector<Area>{{10, 20, 30, 20}, {100, 25, 5, 10}}));
}

TEST(LayoutAlignment, hasNothingToDoWithNothing) {
    EXPECT_TRUE(aligned({}, LayoutAlignment::horizontalCentres).empty());
    EXPECT_TRUE(aligned({}, LayoutAlignment::tops).empty());
}

TEST(LayoutAlignment, knowsItsKeysWithAltAlone) {
    using juce::KeyPress;
    using juce::ModifierKeys;
    const ModifierKeys alt(ModifierKeys::altModifier);
    EXPECT_EQ(alignmentOfKey(KeyPress(KeyPress::upKey, alt, 0)), LayoutAlignment::tops);
    EXPECT_EQ(alignmentOfKey(KeyPress('|', alt, '|')), LayoutAlignment::horizontalCentres);
    EXPECT_EQ(alignmentOfKey(KeyPress('-', alt, 0)), LayoutAlignment::verticalCentres);
    EXPECT_FALSE(alignmentOfKey(KeyPress(KeyPress::upKey)));
    EXPECT_FALSE(alignmentOfKey(KeyPress('-', ModifierKeys(), '-')));
    EXPECT_FALSE(alignmentOfKey(KeyPress('a', alt, 'a')));
}
