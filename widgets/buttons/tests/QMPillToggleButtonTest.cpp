// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMPillToggleButton.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

using Look = QMPillToggleButton::Look;

const juce::Colour background(10, 200, 10);

class PillTest : public ToolkitTest {
protected:
    PillTest() {
        pill.setColours(juce::Colour(100, 100, 100), juce::Colour(208, 125, 39));
        pill.setSize(60, 40);
    }

    QMPillToggleButton pill;
};

} // namespace

TEST_F(PillTest, ItRunsFromItsColourToADarkerOne) {
    const juce::Image picture = pictureOf(pill, background);
    expectPixel(picture, 30, 0, juce::Colour(100, 100, 100), 4);
    // 0.4 of the way from 100 to (8, 25, 39) is (63, 70, 76); darker by 0.2 is that over 1.2.
    expectPixel(picture, 30, 39, juce::Colour(53, 58, 63), 4);
}

TEST_F(PillTest, AFlatOneHasLessOfAGradient) {
    pill.setFlat(true);
    const juce::Image picture = pictureOf(pill, background);
    expectPixel(picture, 30, 0, juce::Colour(100, 100, 100), 4);
    // 0.2 of the way from 100 to (8, 25, 39).
    expectPixel(picture, 30, 39, juce::Colour(82, 85, 88), 4);
}

TEST_F(PillTest, OnItHasTheOtherColourUnlessItIsDisabled) {
    pill.setParameterValue(0, 1.0, false);
    EXPECT_EQ(pill.currentLook(), Look::on);
    juce::Image picture = pictureOf(pill, background);
    expectPixel(picture, 30, 0, juce::Colour(208, 125, 39), 4);
    // 0.4 of the way to (8, 25, 39) is (128, 85, 39).
    expectPixel(picture, 30, 39, juce::Colour(107, 71, 33), 4);
    pill.setWidgetEnabled(false);
    EXPECT_EQ(pill.currentLook(), Look::normal);
    expectPixel(pictureOf(pill, background), 30, 0, juce::Colour(100, 100, 100), 4);
}

TEST_F(PillTest, PressedTheLightFallsOnItsLowerHalf) {
    pill.setStaticState(true);
    TestWindow window(pill);
    window.press(pill);
    EXPECT_EQ(pill.currentLook(), Look::pressed);
    const juce::Image picture = pictureOf(pill, background);
    expectPixel(picture, 30, 0, juce::Colour(53, 58, 63), 4);
    expectPixel(picture, 30, 39, juce::Colour(100, 100, 100), 4);
    window.dragTo({200.0f, 200.0f});
    EXPECT_EQ(pill.currentLook(), Look::normal);
}

TEST_F(PillTest, AForcedLookReplacesTheOthers) {
    pill.setForcedLook(Look::on);
    expectPixel(pictureOf(pill, background), 30, 0, juce::Colour(208, 125, 39), 4);
    pill.setParameterValue(0, 1.0, false);
    pill.setForcedLook(Look::pressed);
    EXPECT_EQ(pill.currentLook(), Look::pressed);
    pill.setForcedLook(Look::normal);
    EXPECT_EQ(pill.currentLook(), Look::on);
}

TEST_F(PillTest, TheMarginStaysFreeOnEverySide) {
    pill.setMargin(5);
    pill.setCornerSize(0.0f);
    EXPECT_EQ(inkOf(pictureOf(pill, background), background), juce::Rectangle<int>(5, 5, 50, 30));
}

TEST_F(PillTest, CornersAreRoundButForThoseAtJoinedEdges) {
    pill.setCornerSize(10.0f);
    juce::Image picture = pictureOf(pill, background);
    expectPixel(picture, 0, 0, background, 0);
    expectPixel(picture, 59, 39, background, 0);
    pill.setJoinedEdges({.right = true});
    picture = pictureOf(pill, background);
    expectPixel(picture, 0, 0, background, 0);
    expectPixel(picture, 0, 39, background, 0);
    expectPixel(picture, 59, 0, juce::Colour(100, 100, 100), 4);
    expectPixel(picture, 59, 39, juce::Colour(53, 58, 63), 4);
}

TEST_F(PillTest, ItCarriesItsNameInItsTextColour) {
    pill.setColours(juce::Colours::black, juce::Colours::black);
    pill.setTextColour(juce::Colour(255, 0, 255));
    pill.setFlat(true);
    pill.setName("HHH");
    const auto strongestMagenta = [this] {
        const juce::Image picture = pictureOf(pill, background);
        int strongest = 0;
        for (int x = 5; x < 55; ++x)
            strongest = juce::jmax(strongest, int{picture.getPixelAt(x, 20).getRed()});
        return strongest;
    };
    const int enabled = strongestMagenta();
    EXPECT_GT(enabled, 180);
    pill.setWidgetEnabled(false);
    EXPECT_NEAR(strongestMagenta(), enabled * 45 / 100, 6);
}

TEST_F(PillTest, AShapeIsDrawnInsteadOfTheNameIntoTheInnerThreeFifths) {
    juce::Rectangle<float> given;
    pill.setName("HHH");
    pill.setColours(juce::Colours::white, juce::Colours::white);
    pill.setTextColour(juce::Colours::red);
    pill.setMargin(2);
    pill.setShapeDrawer([&](juce::Graphics& g, juce::Rectangle<float> area) {
        given = area;
        g.fillRect(area.removeFromTop(4.0f));
    });
    juce::Image picture = pictureOf(pill, background);
    // A fifth of 60 and a fifth of 40 on every side, whatever the margin.
    EXPECT_EQ(given, juce::Rectangle<float>(12.0f, 8.0f, 36.0f, 24.0f));
    // No text: nothing red in the middle.
    EXPECT_NEAR(picture.getPixelAt(30, 20).getRed(), picture.getPixelAt(30, 20).getGreen(), 16);
    // Black at 208 / 255 over a light grey: 255 becomes 47.
    const int light = picture.getPixelAt(20, 13).getRed();
    EXPECT_NEAR(picture.getPixelAt(20, 9).getRed(), light * 47 / 255, 8);
    pill.setWidgetEnabled(false);
    picture = pictureOf(pill, background);
    // And at 0.45 of that, 94 / 255: what is left is 161 / 255.
    EXPECT_NEAR(picture.getPixelAt(20, 9).getRed(), light * 161 / 255, 10);
}

TEST_F(PillTest, TwoPicturesReplaceTheDrawing) {
    pill.setPictures(imageOf(juce::Colours::red, 10, 10), imageOf(juce::Colours::blue, 10, 10));
    expectPixel(pictureOf(pill, juce::Colours::black), 1, 1, juce::Colours::red);
    pill.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(pill, juce::Colours::black), 58, 38, juce::Colours::blue);
    pill.setWidgetEnabled(false);
    // Off, at 0.45 over black.
    expectPixel(pictureOf(pill, juce::Colours::black), 30, 20, juce::Colour(115, 0, 0), 2);
}

TEST_F(PillTest, AHiddenOneDrawsNothingButWorks) {
    pill.setDrawingHidden(true);
    pill.setName("HHH");
    pill.setSlotState(0, true, 0xffff0000);
    EXPECT_TRUE(inkOf(pictureOf(pill, background), background, 0).isEmpty());
    TestWindow window(pill);
    window.click(pill);
    EXPECT_EQ(pill.getState(), 1);
}

TEST_F(PillTest, ItsSlotStateIsAFrameOfTwoPixelsAroundTheWholeButton) {
    pill.setMargin(10);
    pill.setSlotState(0, true, 0xff0000ff);
    const juce::Image picture = pictureOf(pill, juce::Colours::black);
    // A quarter of 255 over black.
    const juce::Colour frame(0, 0, 64);
    expectPixel(picture, 0, 20, frame, 2);
    expectPixel(picture, 1, 20, frame, 2);
    expectPixel(picture, 2, 20, juce::Colours::black, 0);
    expectPixel(picture, 58, 20, frame, 2);
    expectPixel(picture, 30, 38, frame, 2);
    pill.setSlotState(0, false, 0xff0000ff);
    expectPixel(pictureOf(pill, juce::Colours::black), 0, 20, juce::Colours::black, 0);
}
