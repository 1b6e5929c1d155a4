// SPDX-License-Identifier: GPL-3.0-or-later
// The sizes a user can choose, and what is kept of them.
#include "widgets/ui/UISizeSteps.h"

#include <gtest/gtest.h>

TEST(UISizeSteps, cutsTheItemsFactorsToWholePercent) {
    // 72.0339, 84.74576 and 100.
    EXPECT_EQ(UISizeSteps::percentOfItem(0), 72);
    EXPECT_EQ(UISizeSteps::percentOfItem(1), 84);
    EXPECT_EQ(UISizeSteps::percentOfItem(2), 100);
}

TEST(UISizeSteps, countsItemsOutOfRangeOnRoundTheEnd) {
    EXPECT_EQ(UISizeSteps::percentOfItem(3), 72);
    EXPECT_EQ(UISizeSteps::percentOfItem(-1), 100);
}

TEST(UISizeSteps, namesTheItems) {
    EXPECT_EQ(UISizeSteps::itemTexts(),
              juce::StringArray("Small UI (82 ppi)", "Medium UI (97 ppi)", "Large UI (115 ppi)"));
}

TEST(UISizeSteps, takesSmallStoredNumbersForItemsAndOthersForPercent) {
    EXPECT_EQ(UISizeSteps::percentOfStored(0), 72);
    EXPECT_EQ(UISizeSteps::percentOfStored(2), 100);
    EXPECT_EQ(UISizeSteps::percentOfStored(3), 3);
    EXPECT_EQ(UISizeSteps::percentOfStored(250), 250);
}

TEST(UISizeSteps, takesANegativeStoredNumberForNone) {
    EXPECT_EQ(UISizeSteps::percentOfStored(-1), 120);
}

TEST(UISizeSteps, listsPercentagesUpToTheLast) {
    const auto steps = UISizeSteps::percents(40, 250, 10);
    ASSERT_EQ(steps.size(), 22U);
    EXPECT_EQ(steps.front(), 40);
    EXPECT_EQ(steps[8], 120);
    EXPECT_EQ(steps.back(), 250);
    EXPECT_TRUE(UISizeSteps::percents(40, 250, 0).empty());
}
