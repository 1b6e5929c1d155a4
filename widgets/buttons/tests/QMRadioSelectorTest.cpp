// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMRadioSelector.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/SegmentRow.h"
#include "widgets/buttons/tests/RecordingTarget.h"
#include "widgets/statics/tests/PictureOf.h"

#include <limits>
#include <string>

namespace {

std::string areasOf(const std::vector<RowSegment>& row) {
    std::string text;
    for (const RowSegment& segment : row)
        text += std::to_string(segment.area.getX()) + "+" +
                std::to_string(segment.area.getWidth()) + " ";
    return text;
}

class RadioSelectorTest : public ToolkitTest {
protected:
    RadioSelectorTest() {
        selector.setItems({"A", "B", "C"}, 0);
        selector.setSize(90, 20);
        selector.setParameter(0, RecordingTarget::parameter);
        selector.addParameterTarget(&target);
        selector.setChangeCallback([this](QMRadioSelector&, double value) {
            changes += std::to_string(static_cast<int>(value)) + " ";
        });
    }

    [[nodiscard]] std::string litSegments() const {
        std::string lit;
        for (int i = 0; i < selector.getNumSegments(); ++i)
            lit += selector.segment(i).getState() == 1 ? "1" : "0";
        return lit;
    }

    RecordingTarget target;
    QMRadioSelector selector;
    std::string changes;
};

} // namespace

TEST(SegmentRow, NeighboursOverlapByOnePixel) {
    // 80 / 2 + 1, and what is left of 80 from 40 on.
    EXPECT_EQ(areasOf(segmentRow({0, 0, 80, 20}, 2)), "0+41 40+40 ");
    // 90 / 3 + 1 from 0, 30 and 60, the last one cut at 90.
    EXPECT_EQ(areasOf(segmentRow({0, 0, 90, 20}, 3)), "0+31 30+31 60+30 ");
    EXPECT_EQ(areasOf(segmentRow({5, 3, 80, 20}, 1)), "5+80 ");
}

TEST(SegmentRow, WhatTheDivisionLeavesOverStaysEmpty) {
    // 80 / 3 is 26: each is 27 wide, and 79 is left out.
    EXPECT_EQ(areasOf(segmentRow({0, 0, 80, 20}, 3)), "0+27 26+27 52+27 ");
}

TEST(SegmentRow, OnlyTheOuterEndsAreRound) {
    const std::vector<RowSegment> row = segmentRow({0, 0, 90, 20}, 3);
    EXPECT_FALSE(row[0].joined.left);
    EXPECT_TRUE(row[0].joined.right);
    EXPECT_TRUE(row[1].joined.left);
    EXPECT_TRUE(row[1].joined.right);
    EXPECT_TRUE(row[2].joined.left);
    EXPECT_FALSE(row[2].joined.right);
    const std::vector<RowSegment> single = segmentRow({0, 0, 90, 20}, 1);
    EXPECT_FALSE(single[0].joined.left);
    EXPECT_FALSE(single[0].joined.right);
}

TEST(SegmentRow, ThereMayBeNoRoomAndNoSegments) {
    EXPECT_TRUE(segmentRow({0, 0, 90, 20}, 0).empty());
    EXPECT_TRUE(segmentRow({0, 0, 90, 20}, -1).empty());
    for (const RowSegment& segment : segmentRow({0, 0, 2, 20}, 5)) {
        EXPECT_GE(segment.area.getWidth(), 0);
        EXPECT_LE(segment.area.getRight(), 2);
    }
    EXPECT_EQ(segmentRow({0, 0, 0, 0}, 3).size(), 3U);
}

TEST_F(RadioSelectorTest, ItsSegmentsStandInsideTheMargin) {
    selector.setMargin(4);
    // 82 wide: 82 / 3 + 1 = 28.
    EXPECT_EQ(selector.segment(0).getBounds(), juce::Rectangle<int>(4, 4, 28, 12));
    EXPECT_EQ(selector.segment(1).getBounds(), juce::Rectangle<int>(31, 4, 28, 12));
    EXPECT_EQ(selector.segment(2).getBounds(), juce::Rectangle<int>(58, 4, 28, 12));
}

TEST_F(RadioSelectorTest, TheCornersOfTheRowAreRoundAndItsJointsAreSquare) {
    const juce::Colour background(255, 0, 255);
    selector.segment(0).setCornerSize(8.0f);
    selector.segment(2).setCornerSize(8.0f);
    const juce::Image picture = pictureOf(selector, background);
    expectPixel(picture, 0, 0, background, 0);
    expectPixel(picture, 0, 19, background, 0);
    expectPixel(picture, 89, 0, background, 0);
    expectPixel(picture, 89, 19, background, 0);
    for (const int joint : {29, 31, 59, 61}) {
        EXPECT_FALSE(isNear(picture.getPixelAt(joint, 0), background, 60)) << joint;
        EXPECT_FALSE(isNear(picture.getPixelAt(joint, 19), background, 60)) << joint;
    }
}

TEST_F(RadioSelectorTest, AValueLightsItsSegmentAlone) {
    EXPECT_EQ(litSegments(), "100");
    selector.setParameterValue(0, 1.7, false);
    EXPECT_EQ(litSegments(), "010");
    EXPECT_EQ(selector.getSlotValue(0), 1.0);
    EXPECT_EQ(selector.getDisplayText(), "B");
    EXPECT_EQ(target.takeNotes(), "");
    EXPECT_EQ(changes, "");
}

TEST_F(RadioSelectorTest, AValueWithoutASegmentLightsNone) {
    selector.setParameterValue(0, 3.0, false);
    EXPECT_EQ(litSegments(), "000");
    EXPECT_EQ(selector.getDisplayText(), "");
    selector.setParameterValue(0, 2.0, false);
    selector.setParameterValue(0, std::numeric_limits<double>::quiet_NaN(), true);
    selector.setParameterValue(0, 1.0e300, true);
    selector.setParameterValue(1, 0.0, true);
    EXPECT_EQ(litSegments(), "001");
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(RadioSelectorTest, AClickOnASegmentSelectsItAndTellsTheOwner) {
    TestWindow window(selector);
    window.press(selector.segment(2));
    // Only when it is let go.
    EXPECT_EQ(litSegments(), "100");
    window.release();
    EXPECT_EQ(litSegments(), "001");
    EXPECT_EQ(target.takeNotes(), "begin 2 end ");
    EXPECT_EQ(changes, "2 ");
    EXPECT_FALSE(selector.isTouched(0));
}

TEST_F(RadioSelectorTest, AClickOnTheLitSegmentIsToldAsWell) {
    TestWindow window(selector);
    window.click(selector.segment(0));
    EXPECT_EQ(litSegments(), "100");
    EXPECT_EQ(changes, "0 ");
}

TEST_F(RadioSelectorTest, LettingGoOutsideTheSegmentChangesNothing) {
    TestWindow window(selector);
    window.press(selector.segment(2));
    window.dragTo({15.0f, 10.0f});
    window.release();
    EXPECT_EQ(litSegments(), "100");
    EXPECT_EQ(changes, "");
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(RadioSelectorTest, ADisabledOneIgnoresClicks) {
    TestWindow window(selector);
    selector.setWidgetEnabled(false);
    window.click(selector.segment(1));
    EXPECT_EQ(litSegments(), "100");
    EXPECT_EQ(changes, "");
}

TEST_F(RadioSelectorTest, AClickThatTheTargetTakesIsNotTheSelectors) {
    TestWindow window(selector);
    target.wantsClicks = true;
    window.click(selector.segment(1));
    EXPECT_EQ(litSegments(), "100");
    EXPECT_EQ(changes, "");
}

TEST_F(RadioSelectorTest, EachSegmentHasItsNameAndItsHelp) {
    selector.setItemHelpTexts({"First.", "Second.", "Third."});
    EXPECT_EQ(selector.segment(1).getName(), "B");
    EXPECT_EQ(selector.segment(1).getTooltip(), "Second.");
    selector.setItems({"One", "Two", "Three", "Four"}, 3);
    EXPECT_EQ(selector.getNumSegments(), 4);
    EXPECT_EQ(litSegments(), "0001");
    EXPECT_EQ(selector.segment(2).getTooltip(), "Third.");
    EXPECT_EQ(selector.segment(3).getTooltip(), "");
    selector.setItems({"One", "Two"}, 0);
    EXPECT_EQ(selector.getNumSegments(), 2);
    EXPECT_EQ(litSegments(), "10");
}

TEST_F(RadioSelectorTest, TheKeyboardStepsThroughIt) {
    TestWindow window(selector);
    selector.takeFocus();
    ASSERT_TRUE(selector.hasKeyboardFocus(false));
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::rightKey)));
    EXPECT_EQ(litSegments(), "010");
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_EQ(litSegments(), "001");
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::returnKey)));
    EXPECT_EQ(litSegments(), "100");
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::leftKey)));
    EXPECT_EQ(litSegments(), "100");
    EXPECT_EQ(changes, "1 2 0 ");
}

TEST_F(RadioSelectorTest, ItMayGoWhenItsOwnerIsTold) {
    auto shortLived = std::make_unique<QMRadioSelector>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->setSize(80, 20);
    shortLived->setChangeCallback([&](QMRadioSelector&, double) { shortLived.reset(); });
    TestWindow window(*shortLived);
    window.click({60.0f, 10.0f});
    EXPECT_EQ(shortLived, nullptr);
}

TEST_F(RadioSelectorTest, ItsIdealWidthHoldsEverySegmentAndTheMargin) {
    const int single = selector.segment(0).getIdealWidth();
    selector.setItems({"A", "A", "A"}, 0);
    selector.setMargin(3);
    EXPECT_EQ(selector.getIdealWidth(), 3 * selector.segment(0).getIdealWidth() - 2 + 6);
    EXPECT_GE(single, 8);
}
