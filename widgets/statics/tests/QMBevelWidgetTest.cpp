// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMBevelWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/statics/QMDividerWidget.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

const juce::Colour middleGrey(128, 128, 128);

/// White over middle grey: 128 + (255 - 128) x opacity.
juce::Colour whiteAt(double opacity) {
    const auto level = static_cast<juce::uint8>(128.0 + 127.0 * opacity + 0.5);
    return {level, level, level};
}

/// Black over middle grey: 128 x (1 - opacity).
juce::Colour blackAt(double opacity) {
    const auto level = static_cast<juce::uint8>(128.0 * (1.0 - opacity) + 0.5);
    return {level, level, level};
}

class BevelTest : public ToolkitTest {
protected:
    BevelTest() { bevel.setSize(40, 30); }

    QMBevelWidget bevel;
};

} // namespace

TEST_F(BevelTest, TheUpperRowsAreLightAndTheLowerOnesDark) {
    const juce::Image picture = pictureOf(bevel, middleGrey);
    // 0.1 and its square; 0.4, its square and its cube.
    expectPixel(picture, 20, 0, whiteAt(0.01), 1);
    expectPixel(picture, 20, 1, whiteAt(0.1), 1);
    expectPixel(picture, 20, 2, whiteAt(0.01), 1);
    expectPixel(picture, 20, 3, middleGrey, 0);
    expectPixel(picture, 20, 26, middleGrey, 0);
    expectPixel(picture, 20, 27, blackAt(0.064), 1);
    expectPixel(picture, 20, 28, blackAt(0.16), 1);
    expectPixel(picture, 20, 29, blackAt(0.4), 1);
}

TEST_F(BevelTest, TheColumnsAreLightAtTheLeftAndDarkAtTheRight) {
    const juce::Image picture = pictureOf(bevel, middleGrey);
    expectPixel(picture, 0, 15, whiteAt(0.01), 1);
    expectPixel(picture, 1, 15, whiteAt(0.1), 1);
    expectPixel(picture, 2, 15, whiteAt(0.01), 1);
    expectPixel(picture, 3, 15, middleGrey, 0);
    expectPixel(picture, 36, 15, middleGrey, 0);
    expectPixel(picture, 37, 15, blackAt(0.064), 1);
    expectPixel(picture, 38, 15, blackAt(0.16), 1);
    expectPixel(picture, 39, 15, blackAt(0.4), 1);
}

TEST_F(BevelTest, AtTheCornersRowsAndColumnsLieOverEachOther) {
    const juce::Image picture = pictureOf(bevel, middleGrey);
    // The dark corner: 128 x 0.6 x 0.6.
    expectPixel(picture, 39, 29, juce::Colour(46, 46, 46), 1);
    // The light one, 1 - 0.9 x 0.9 of white.
    expectPixel(picture, 1, 1, whiteAt(0.19), 1);
}

TEST_F(BevelTest, AnInvertedOneIsDarkAtTheTopAndLightAtTheBottom) {
    bevel.setInverted(true);
    const juce::Image picture = pictureOf(bevel, middleGrey);
    expectPixel(picture, 20, 0, blackAt(0.16), 1);
    expectPixel(picture, 20, 1, blackAt(0.4), 1);
    expectPixel(picture, 20, 2, blackAt(0.16), 1);
    expectPixel(picture, 20, 27, whiteAt(0.001), 1);
    expectPixel(picture, 20, 28, whiteAt(0.01), 1);
    expectPixel(picture, 20, 29, whiteAt(0.1), 1);
    expectPixel(picture, 1, 15, blackAt(0.4), 1);
    expectPixel(picture, 39, 15, whiteAt(0.1), 1);
}

TEST_F(BevelTest, ItLeavesClicksToWhatIsBehind) {
    TestWindow window(bevel);
    EXPECT_EQ(window.getComponentAt(20, 15), &window);
}

using DividerTest = ToolkitTest;

TEST_F(DividerTest, ALyingOneIsDarkAboveItsMiddleAndLightBelow) {
    QMDividerWidget divider;
    divider.setSize(40, 8);
    const juce::Image picture = pictureOf(divider, middleGrey);
    expectPixel(picture, 20, 1, middleGrey, 0);
    expectPixel(picture, 20, 2, blackAt(0.16), 1);
    expectPixel(picture, 20, 3, blackAt(0.4), 1);
    expectPixel(picture, 20, 4, whiteAt(0.1), 1);
    expectPixel(picture, 20, 5, whiteAt(0.01), 1);
    expectPixel(picture, 20, 6, middleGrey, 0);
    expectPixel(picture, 0, 3, blackAt(0.4), 1);
    expectPixel(picture, 39, 3, blackAt(0.4), 1);
}

TEST_F(DividerTest, AStandingOneIsDarkAtTheLeftOfItsMiddle) {
    QMDividerWidget divider;
    divider.setSize(8, 40);
    const juce::Image picture = pictureOf(divider, middleGrey);
    expectPixel(picture, 3, 20, blackAt(0.4), 1);
    expectPixel(picture, 4, 20, whiteAt(0.1), 1);
}

TEST_F(DividerTest, OfASinglePixelTheDarkLineIsLeft) {
    QMDividerWidget divider;
    divider.setSize(40, 1);
    expectPixel(pictureOf(divider, middleGrey), 20, 0, blackAt(0.4), 1);
}
