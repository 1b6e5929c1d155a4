// SPDX-License-Identifier: GPL-3.0-or-later
// What a readout draws: its frame, out of pictures or by itself, and its text.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/controls/tests/support/TestPictures.h"
#include "widgets/images/ResourceImages.h"

#include <optional>
#include <utility>

namespace {

const juce::Colour red{255, 0, 0};
const juce::Colour blue{0, 0, 255};
const juce::Colour yellow{255, 255, 0};

/// The pixels that are nearly of a colour.
int countOf(const juce::Image& picture, juce::Colour colour) {
    int count = 0;
    for (int y = 0; y < picture.getHeight(); ++y)
        for (int x = 0; x < picture.getWidth(); ++x)
            count += difference(picture.getPixelAt(x, y), colour) < 40 ? 1 : 0;
    return count;
}

} // namespace

class ReadoutFrameTest : public ToolkitTest {
protected:
    ReadoutFrameTest() { readout.setBounds(0, 0, 100, 24); }

    void addPictures() const {
        resources.add("oglossywindowleft.png", plainImage(10, 48, red));
        resources.add("oglossywindowmiddle.png", plainImage(4, 48, blue));
        resources.add("oglossywindowright.png", plainImage(15, 40, yellow));
    }

    TestResources resources;
    QMParameterReadoutWidget readout;
};

TEST_F(ReadoutFrameTest, IsTwoCapsAndAMiddleStretchedBetweenThem) {
    addPictures();
    const juce::Image picture = pictureOf(readout);
    // 10 x 24 / 48 = 5 pixels at the left, 15 x 24 / 40 = 9 at the right.
    EXPECT_LE(difference(picture.getPixelAt(2, 12), red), 4);
    EXPECT_LE(difference(picture.getPixelAt(7, 2), blue), 4);
    EXPECT_LE(difference(picture.getPixelAt(88, 2), blue), 4);
    EXPECT_LE(difference(picture.getPixelAt(93, 12), yellow), 4);
}

TEST_F(ReadoutFrameTest, IsDrawnWhereAPictureIsMissingOrThePlainLookIsAskedFor) {
    resources.add("oglossywindowleft.png", plainImage(10, 48, red));
    const juce::Image without = pictureOf(readout);
    EXPECT_EQ(countOf(without, red), 0);
    EXPECT_EQ(without.getPixelAt(10, 12).getAlpha(), 255);
    QMParameterReadoutWidget plain;
    addPictures();
    retryFailedImages();
    plain.setBounds(0, 0, 100, 24);
    plain.setGlossy(false);
    EXPECT_EQ(countOf(pictureOf(plain), blue), 0);
    plain.setGlossy(true);
    EXPECT_GT(countOf(pictureOf(plain), blue), 100);
}

TEST_F(ReadoutFrameTest, TheTextIsGreenUntilItIsGivenAnotherColour) {
    readout.setParameterValue(0, 88.88, false);
    EXPECT_GT(countOf(pictureOf(readout), juce::Colour(0, 255, 0)), 10);
    readout.setTextColour(juce::Colour(255, 0, 255));
    EXPECT_EQ(countOf(pictureOf(readout), juce::Colour(0, 255, 0)), 0);
    EXPECT_GT(countOf(pictureOf(readout), juce::Colour(255, 0, 255)), 10);
    readout.setTextColour(std::nullopt);
    // That of the colour source: dark on the light grey of a widget without a parent.
    EXPECT_EQ(countOf(pictureOf(readout), juce::Colour(255, 0, 255)), 0);
}

TEST_F(ReadoutFrameTest, ADisabledReadoutIsFainter) {
    EXPECT_EQ(pictureOf(readout).getPixelAt(10, 12).getAlpha(), 255);
    readout.setWidgetEnabled(false);
    EXPECT_NEAR(pictureOf(readout).getPixelAt(10, 12).getAlpha(), 102, 3.0);
}

TEST_F(ReadoutFrameTest, ATinyReadoutDoesNoHarm) {
    addPictures();
    for (const auto& [width, height] : {std::pair{0, 0}, {1, 1}, {3, 40}, {100, 1}}) {
        readout.setBounds(0, 0, width, height);
        juce::Image picture(juce::Image::ARGB, 100, 40, true);
        juce::Graphics g(picture);
        readout.paint(g);
    }
}

TEST_F(ReadoutFrameTest, APartOfTheBoundsIsAllThatIsDrawn) {
    readout.setMagnification(2.0f);
    readout.setBounds(0, 0, 100, 240);
    readout.setFrameArea({0, 20, 50, 18});
    EXPECT_EQ(readout.getFrameArea(), juce::Rectangle<int>(0, 40, 100, 36));
    const juce::Image picture = pictureOf(readout);
    EXPECT_EQ(picture.getPixelAt(50, 30).getAlpha(), 0);
    EXPECT_EQ(picture.getPixelAt(50, 58).getAlpha(), 255);
    EXPECT_EQ(picture.getPixelAt(50, 90).getAlpha(), 0);
    EXPECT_FALSE(readout.hitTest(50, 30));
    EXPECT_TRUE(readout.hitTest(50, 58));
    EXPECT_FALSE(readout.hitTest(50, 90));
}

TEST_F(ReadoutFrameTest, APartBeyondTheBoundsIsCutToThem) {
    readout.setFrameArea({-10, 10, 500, 500});
    EXPECT_EQ(readout.getFrameArea(), juce::Rectangle<int>(0, 10, 100, 14));
    readout.setFrameArea({});
    EXPECT_EQ(readout.getFrameArea(), juce::Rectangle<int>(0, 0, 100, 24));
}
