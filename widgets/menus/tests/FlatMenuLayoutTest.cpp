// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/FlatMenuLayout.h"

#include <gtest/gtest.h>

namespace {

using Horizontal = FlatMenuOptions::Horizontal;
using Vertical = FlatMenuOptions::Vertical;
using Area = juce::Rectangle<float>;

/// 200 x 30, with a font of 20: the arrow is 22 and stands at y = 4.
FlatMenuMeasures measures() {
    FlatMenuMeasures all;
    all.bounds = {0.0f, 0.0f, 200.0f, 30.0f};
    all.fontHeight = 20.0f;
    all.textWidth = 60.0f;
    all.arrowIsActive = true;
    return all;
}

FlatMenuOptions placed(Horizontal horizontal) {
    FlatMenuOptions options;
    options.horizontalPlacement = horizontal;
    return options;
}

} // namespace

TEST(FlatMenuLayout, AtTheLeftTheArrowFollowsTheText) {
    const FlatMenuLayout layout = layOutFlatMenu(placed(Horizontal::left), measures());
    EXPECT_EQ(layout.text, Area(0.0f, 0.0f, 200.0f, 30.0f));
    EXPECT_EQ(layout.arrow, Area(60.0f, 4.0f, 22.0f, 22.0f));
    EXPECT_TRUE(layout.name.isEmpty());
}

TEST(FlatMenuLayout, InTheCentreTheArrowStandsBesideTheCentredText) {
    FlatMenuOptions options = placed(Horizontal::centre);
    // 100 + 60 / 2 - 2.
    FlatMenuLayout layout = layOutFlatMenu(options, measures());
    EXPECT_EQ(layout.arrow, Area(128.0f, 4.0f, 22.0f, 22.0f));
    EXPECT_EQ(layout.text.getWidth(), 200.0f);
    // A forced one takes half its size from the text and moves by a quarter.
    options.forceArrow = true;
    layout = layOutFlatMenu(options, measures());
    EXPECT_EQ(layout.arrow, Area(122.5f, 4.0f, 22.0f, 22.0f));
    EXPECT_EQ(layout.text, Area(0.0f, 0.0f, 189.0f, 30.0f));
}

TEST(FlatMenuLayout, AtTheRightTheArrowStandsAtTheEdgeAndTheTextEndsBeforeIt) {
    const FlatMenuLayout layout = layOutFlatMenu(placed(Horizontal::right), measures());
    EXPECT_EQ(layout.arrow, Area(178.0f, 4.0f, 22.0f, 22.0f));
    EXPECT_EQ(layout.text, Area(0.0f, 0.0f, 178.0f, 30.0f));
}

TEST(FlatMenuLayout, TheArrowMayStandAtTheRightWhereverTheTextIs) {
    for (const Horizontal horizontal : {Horizontal::left, Horizontal::centre}) {
        FlatMenuOptions options = placed(horizontal);
        options.arrowAtRight = true;
        const FlatMenuLayout layout = layOutFlatMenu(options, measures());
        EXPECT_EQ(layout.arrow, Area(178.0f, 4.0f, 22.0f, 22.0f));
        EXPECT_EQ(layout.text.getWidth(), 200.0f);
    }
}

TEST(FlatMenuLayout, WithoutAnArrowTheTextHasAllTheRoom) {
    FlatMenuMeasures without = measures();
    without.arrowIsActive = false;
    const FlatMenuLayout layout = layOutFlatMenu(placed(Horizontal::right), without);
    EXPECT_TRUE(layout.arrow.isEmpty());
    EXPECT_EQ(layout.text.getWidth(), 200.0f);
}

TEST(FlatMenuLayout, TheNameStandsAtTheLeftAndTheRestBeginsAfterIt) {
    FlatMenuMeasures named = measures();
    named.nameWidth = 50.0f;
    FlatMenuOptions options = placed(Horizontal::left);
    FlatMenuLayout layout = layOutFlatMenu(options, named);
    EXPECT_EQ(layout.name, Area(0.0f, 0.0f, 50.0f, 30.0f));
    EXPECT_EQ(layout.text, Area(50.0f, 0.0f, 150.0f, 30.0f));
    EXPECT_EQ(layout.arrow.getX(), 110.0f);
    // On a background there is a gap.
    options.drawBackground = true;
    layout = layOutFlatMenu(options, named);
    EXPECT_EQ(layout.text, Area(58.0f, 0.0f, 142.0f, 30.0f));
    EXPECT_EQ(layout.arrow.getX(), 118.0f);
    options.hideLabel = true;
    layout = layOutFlatMenu(options, named);
    EXPECT_TRUE(layout.name.isEmpty());
    EXPECT_EQ(layout.text.getX(), 0.0f);
}

TEST(FlatMenuLayout, ANameTooLongIsCutAtTheEdge) {
    FlatMenuMeasures named = measures();
    named.nameWidth = 500.0f;
    const FlatMenuLayout layout = layOutFlatMenu(placed(Horizontal::left), named);
    EXPECT_EQ(layout.name.getWidth(), 200.0f);
    EXPECT_TRUE(layout.text.isEmpty());
}

TEST(FlatMenuLayout, TheArrowOfATextTooLongStaysInSight) {
    FlatMenuMeasures longText = measures();
    longText.textWidth = 500.0f;
    EXPECT_EQ(layOutFlatMenu(placed(Horizontal::left), longText).arrow.getRight(), 200.0f);
    EXPECT_EQ(layOutFlatMenu(placed(Horizontal::centre), longText).arrow.getRight(), 200.0f);
}

TEST(FlatMenuLayout, BothPlacementsMakeTheJustification) {
    FlatMenuOptions options;
    const auto flags = [&](Horizontal horizontal, Vertical vertical) {
        options.horizontalPlacement = horizontal;
        options.verticalPlacement = vertical;
        return options.justification().getFlags();
    };
    // Left 1, right 2, centre 4; top 8, bottom 16, centre 32.
    EXPECT_EQ(flags(Horizontal::left, Vertical::top), 9);
    EXPECT_EQ(flags(Horizontal::centre, Vertical::centre), 36);
    EXPECT_EQ(flags(Horizontal::right, Vertical::bottom), 18);
    EXPECT_EQ(flags(Horizontal::centre, Vertical::top), 12);
    EXPECT_EQ(flags(Horizontal::left, Vertical::centre), 33);
}
