// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMToggleButton.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

using ToggleButtonTest = ToolkitTest;

const juce::Colour grey(100, 100, 100);

/// Colour over grey at an opacity of 0.45.
juce::Colour dimmed(juce::Colour colour) {
    return grey.interpolatedWith(colour, 0.45f);
}

} // namespace

TEST_F(ToggleButtonTest, TheLampIsOrangeWithoutAStyleAndDarkWhenItIsOff) {
    QMToggleButton button;
    button.setSize(60, 60);
    // The brightness of (255, 128, 0) is 1; a tenth of it is (25.5, 12.8, 0).
    expectPixel(pictureOf(button, grey), 30, 34, juce::Colour(25, 13, 0), 2);
    button.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(button, grey), 30, 34, juce::Colour(255, 128, 0), 1);
}

TEST_F(ToggleButtonTest, TheStyleSaysWhatTheLampIsLitIn) {
    const ToggleStyleRecord style(255, 192, 64, 255);
    QMToggleButton button(&style);
    button.setSize(60, 60);
    button.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(button, grey), 30, 34, juce::Colour(255, 192, 64), 1);
    button.setParameterValue(0, 0.0, false);
    // A tenth of the brightness with hue and saturation kept: (25.5, 19.2, 6.4).
    expectPixel(pictureOf(button, grey), 30, 34, juce::Colour(25, 19, 6), 2);
}

TEST_F(ToggleButtonTest, TheLampIsACircleInTheSquareAtTheTopLeft) {
    QMToggleButton button;
    button.setPicture(imageOf(juce::Colours::transparentBlack, 10, 10));
    button.setSize(100, 60);
    button.setParameterValue(0, 1.0, false);
    const juce::Image picture = pictureOf(button, grey);
    // Its diameter is 42, and 9 pixels are left at each side.
    EXPECT_EQ(inkOf(picture, grey, 20), juce::Rectangle<int>(9, 9, 42, 42));
    expectPixel(picture, 12, 12, grey, 1);
}

TEST_F(ToggleButtonTest, ADisabledLampIsFaint) {
    QMToggleButton button;
    button.setPicture(imageOf(juce::Colours::transparentBlack, 10, 10));
    button.setSize(60, 60);
    button.setParameterValue(0, 1.0, false);
    button.setWidgetEnabled(false);
    expectPixel(pictureOf(button, grey), 30, 30, dimmed(juce::Colour(255, 128, 0)), 2);
    button.setParameterValue(0, 0.0, false);
    expectPixel(pictureOf(button, grey), 30, 30, dimmed(juce::Colour(25, 13, 0)), 2);
}

TEST_F(ToggleButtonTest, ThePictureLiesOverTheLampAndIsFaintWhenDisabled) {
    juce::Image bezel = imageOf(juce::Colours::transparentBlack, 40, 40);
    bezel.clear({0, 0, 40, 10}, juce::Colours::blue);
    QMToggleButton button;
    button.setPicture(bezel);
    button.setSize(100, 80);
    button.setParameterValue(0, 1.0, false);
    juce::Image picture = pictureOf(button, grey);
    // Into the square of 80: its upper quarter.
    expectPixel(picture, 40, 10, juce::Colours::blue, 1);
    expectPixel(picture, 2, 2, juce::Colours::blue, 1);
    expectPixel(picture, 40, 40, juce::Colour(255, 128, 0), 1);
    expectPixel(picture, 90, 10, grey, 1);
    button.setWidgetEnabled(false);
    picture = pictureOf(button, grey);
    expectPixel(picture, 2, 2, dimmed(juce::Colours::blue), 2);
}

TEST_F(ToggleButtonTest, TheNameIsWhiteOnADarkLampAndBlackOnALitOne) {
    QMToggleButton button;
    button.setPicture(imageOf(juce::Colours::transparentBlack, 10, 10));
    button.setSize(110, 110);
    button.setName("H");
    const juce::Colour off(25, 13, 0);
    // One letter: 110 / 55 x 18 = 36 pixels high, its capitals about 0.7 of that.
    const auto inkInLamp = [&](juce::Colour lamp) {
        return inkOf(pictureOf(button, grey).getClippedImage({30, 30, 50, 50}), lamp, 40);
    };
    const juce::Rectangle<int> letter = inkInLamp(off);
    EXPECT_NEAR(letter.getHeight(), 26, 4);
    EXPECT_NEAR(letter.toFloat().getCentreX(), 25.0f, 2.0f);
    // White at 208 / 255 over the lamp: 25 + 230 x 0.816.
    const juce::Image picture = pictureOf(button, grey);
    juce::uint8 brightest = 0;
    for (int x = 30; x < 80; ++x)
        brightest = juce::jmax(brightest, picture.getPixelAt(x, 48).getRed());
    EXPECT_NEAR(brightest, 213, 4);

    button.setParameterValue(0, 1.0, false);
    const juce::Image lit = pictureOf(button, grey);
    juce::uint8 darkest = 255;
    for (int x = 30; x < 80; ++x)
        darkest = juce::jmin(darkest, lit.getPixelAt(x, 48).getRed());
    // Black at 208 / 255 over 255.
    EXPECT_NEAR(darkest, 47, 4);

    // More letters are smaller: 26 pixels.
    button.setParameterValue(0, 0.0, false);
    button.setName("HH");
    EXPECT_NEAR(inkInLamp(off).getHeight(), 19, 4);
}

TEST_F(ToggleButtonTest, WithoutAPictureABezelIsDrawnThatTellsPressedFromNot) {
    QMToggleButton button;
    button.setSize(60, 60);
    TestWindow window(button);
    const juce::Image before = pictureOf(button, grey);
    // In the ring between the lamp and the edge.
    EXPECT_FALSE(isNear(before.getPixelAt(30, 5), grey, 10));
    button.setStaticState(true);
    window.press(button);
    EXPECT_FALSE(isNear(pictureOf(button, grey).getPixelAt(30, 5), before.getPixelAt(30, 5), 30));
}

TEST_F(ToggleButtonTest, ASelectedOneHasAFrameOfTwoPixels) {
    QMToggleButton button;
    button.setSize(80, 60);
    expectPixel(pictureOf(button, grey), 79, 59, grey, 0);
    button.setSelected(true);
    const juce::Image picture = pictureOf(button, grey);
    // A quarter of (255, 160, 0) over grey.
    const juce::Colour frame(139, 115, 75);
    expectPixel(picture, 0, 3, frame, 2);
    expectPixel(picture, 1, 3, frame, 2);
    expectPixel(picture, 79, 58, frame, 2);
    expectPixel(picture, 70, 59, frame, 2);
    expectPixel(picture, 70, 57, grey, 0);
}

TEST_F(ToggleButtonTest, TheSecondFormHasItsNameBesideTheLamp) {
    QMToggleButton button(nullptr, QMToggleButton::Form::nameBeside);
    button.setPicture(imageOf(juce::Colours::transparentBlack, 10, 10));
    button.setName("HHHH");
    button.setSize(120, 20);
    EXPECT_GT(inkOf(pictureOf(button, juce::Colours::white), juce::Colours::white).getRight(), 40);
    // Without room beside it, on the lamp.
    button.setSize(20, 20);
    EXPECT_FALSE(inkOf(pictureOf(button, juce::Colours::white), juce::Colours::white).isEmpty());
    EXPECT_GT(button.getIdealWidth(), 40);
}

TEST_F(ToggleButtonTest, AClickSwitchesItOnAndOff) {
    QMToggleButton button;
    button.setSize(60, 60);
    TestWindow window(button);
    window.click(button);
    EXPECT_EQ(button.getSlotValue(0), 1.0);
    window.click(button);
    EXPECT_EQ(button.getSlotValue(0), 0.0);
    // A list of items does not make it more than two.
    button.setItems({"Off", "On", "More"}, 1);
    EXPECT_EQ(button.getStateCount(), 2);
    EXPECT_EQ(button.getDisplayText(), "On");
}

TEST_F(ToggleButtonTest, WithoutASizeNothingGoesWrong) {
    QMToggleButton button;
    button.setName("Ena");
    const juce::Image picture = imageOf(juce::Colours::black, 4, 4);
    juce::Graphics g(picture);
    button.paint(g);
    expectPixel(picture, 0, 0, juce::Colours::black, 0);
}
