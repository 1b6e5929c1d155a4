// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMImageWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/statics/ImageStyleRecord.h"
#include "widgets/statics/tests/LinkRecorder.h"
#include "widgets/statics/tests/PictureOf.h"

#include <memory>

namespace {

using ImageWidgetTest = ToolkitTest;

struct ForeignStyle : QMWidgetStyleRecord {};

const juce::Colour red(200, 30, 40);
const juce::Colour blue(20, 60, 220);

/// The left half in one colour and the right half in another.
juce::Image twoHalves(int width, int height) {
    juce::Image image = imageOf(red, width, height);
    image.clear({width / 2, 0, width / 2, height}, blue);
    return image;
}

} // namespace

TEST_F(ImageWidgetTest, ItsPictureComesFromTheBytesOfItsStyle) {
    juce::MemoryOutputStream bytes;
    ASSERT_TRUE(juce::PNGImageFormat().writeImageToStream(imageOf(red, 20, 10), bytes));
    const ImageStyleRecord style(bytes.getData(), bytes.getDataSize());
    QMImageWidget widget(&style);
    ASSERT_EQ(widget.getImage().getBounds(), juce::Rectangle<int>(20, 10));
    widget.setSize(20, 10);
    expectPixel(pictureOf(widget), 10, 5, red);
}

TEST_F(ImageWidgetTest, ItsPictureMayBeReadyInTheStyle) {
    const ImageStyleRecord style(imageOf(blue, 8, 8));
    QMImageWidget widget(&style);
    widget.setSize(8, 8);
    expectPixel(pictureOf(widget), 4, 4, blue);
}

TEST_F(ImageWidgetTest, WithoutAStyleWithAForeignOneAndWithDamagedBytesThereIsNoPicture) {
    const ForeignStyle foreign;
    const char noPicture[] = "not a picture at all";
    const ImageStyleRecord damaged(noPicture, sizeof noPicture);
    EXPECT_TRUE(QMImageWidget().getImage().isNull());
    EXPECT_TRUE(QMImageWidget(&foreign).getImage().isNull());
    EXPECT_TRUE(QMImageWidget(&damaged).getImage().isNull());
}

TEST_F(ImageWidgetTest, WithoutAPictureItsNameStandsThere) {
    QMImageWidget widget;
    widget.setName("HHHH");
    widget.setSize(100, 30);
    const juce::Rectangle<int> ink =
        inkOf(pictureOf(widget, juce::Colours::white), juce::Colours::white);
    EXPECT_NEAR(ink.toFloat().getCentreX(), 50.0f, 2.0f);
    EXPECT_GT(ink.getHeight(), 8);
}

TEST_F(ImageWidgetTest, APictureOfAnotherShapeIsCentredUntilAPlacementIsSet) {
    QMImageWidget widget;
    widget.setImage(imageOf(red, 20, 10));
    // Twice as large, in the middle: rows 10 to 29.
    widget.setSize(40, 40);
    const juce::Image centred = pictureOf(widget);
    EXPECT_EQ(inkOf(centred), juce::Rectangle<int>(0, 10, 40, 20));
    widget.setPlacement(juce::RectanglePlacement::xMid | juce::RectanglePlacement::yTop);
    EXPECT_EQ(inkOf(pictureOf(widget)), juce::Rectangle<int>(0, 0, 40, 20));
    widget.setPlacement(juce::RectanglePlacement::stretchToFit);
    EXPECT_EQ(inkOf(pictureOf(widget)), juce::Rectangle<int>(0, 0, 40, 40));
}

TEST_F(ImageWidgetTest, APictureLargerThanTheWidgetIsAveraged) {
    QMImageWidget widget;
    // Two columns of stripes become one: the average of both colours everywhere.
    juce::Image stripes = imageOf(red, 80, 40);
    for (int x = 0; x < 80; x += 2)
        stripes.clear({x, 0, 1, 40}, blue);
    widget.setImage(stripes);
    widget.setSize(40, 20);
    const juce::Image picture = pictureOf(widget);
    // (200 + 20) / 2, (30 + 60) / 2, (40 + 220) / 2.
    for (int x = 1; x < 39; ++x)
        expectPixel(picture, x, 10, juce::Colour(110, 45, 130), 2);
}

TEST_F(ImageWidgetTest, AReducedPictureHasItsPartsWhereTheyBelong) {
    QMImageWidget widget;
    widget.setImage(twoHalves(200, 100));
    widget.setSize(50, 25);
    const juce::Image picture = pictureOf(widget);
    expectPixel(picture, 2, 12, red);
    expectPixel(picture, 22, 12, red);
    expectPixel(picture, 27, 12, blue);
    expectPixel(picture, 47, 12, blue);
    // Another one in the same size is not the old one.
    widget.setImage(imageOf(blue, 200, 100));
    expectPixel(pictureOf(widget), 2, 12, blue);
}

TEST_F(ImageWidgetTest, ItsOwnColourFillsTheShapeOfThePicture) {
    QMImageWidget widget;
    juce::Image shape = imageOf(juce::Colours::transparentBlack, 20, 20);
    shape.clear({0, 0, 10, 20}, juce::Colours::black);
    widget.setImage(shape);
    widget.setSize(20, 20);
    widget.setOwnColour(juce::Colour(0, 255, 0));
    const juce::Image picture = pictureOf(widget, juce::Colours::white);
    expectPixel(picture, 4, 10, juce::Colour(0, 255, 0));
    expectPixel(picture, 15, 10, juce::Colours::white);
    widget.setOwnColour({});
    expectPixel(pictureOf(widget, juce::Colours::white), 4, 10, juce::Colours::black);
}

TEST_F(ImageWidgetTest, ABadgeIsADiscOfTwelvePixelsInTheLowerRightCorner) {
    QMImageWidget widget;
    widget.setImage(imageOf(blue, 60, 40));
    widget.setSize(60, 40);
    expectPixel(pictureOf(widget), 53, 33, blue);
    widget.setBadgeColour(juce::Colour(255, 255, 0));
    const juce::Image picture = pictureOf(widget);
    // From (47, 27) to (59, 39), so the middle is at (53, 33).
    expectPixel(picture, 53, 33, juce::Colour(255, 255, 0));
    expectPixel(picture, 44, 33, blue);
    expectPixel(picture, 47, 27, blue, 2);
    // Its outline has the panel's colour, which is light grey without a panel.
    expectPixel(picture, 53, 27, juce::Colour(208, 208, 208), 30);
    widget.setBadgeColour(juce::Colours::transparentBlack);
    expectPixel(pictureOf(widget), 53, 33, blue);
}

TEST_F(ImageWidgetTest, AClickOpensTheLinkAndThenTellsTheOwner) {
    const LinkRecorder links;
    QMImageWidget widget;
    widget.setSize(60, 40);
    int linksWhenTold = -1;
    widget.setLink("https://example.org");
    widget.setClickCallback([&](QMImageWidget&) { linksWhenTold = links.opened.size(); });
    TestWindow window(widget);
    window.click(widget);
    EXPECT_EQ(links.opened, juce::StringArray("https://example.org"));
    EXPECT_EQ(linksWhenTold, 1);
}

TEST_F(ImageWidgetTest, APlainPictureLeavesClicksToWhatIsBehind) {
    QMImageWidget widget;
    widget.setSize(60, 40);
    TestWindow window(widget);
    EXPECT_EQ(window.getComponentAt(30, 20), &window);
    widget.setClickCallback([](QMImageWidget&) {});
    EXPECT_EQ(window.getComponentAt(30, 20), &widget);
    widget.setClickCallback(nullptr);
    EXPECT_EQ(window.getComponentAt(30, 20), &window);
}

TEST_F(ImageWidgetTest, LettingGoBesideItDoesNothing) {
    QMImageWidget widget;
    widget.setSize(60, 40);
    int clicks = 0;
    widget.setClickCallback([&](QMImageWidget&) { ++clicks; });
    TestWindow window(widget);
    window.press(widget);
    window.dragTo({200.0f, 20.0f});
    window.release();
    EXPECT_EQ(clicks, 0);
}
