// SPDX-License-Identifier: GPL-3.0-or-later
// Which frame of an image a value shows, where it is in the image, and that it is what is drawn.
#include "widgets/controls/KnobFrames.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/tests/support/TestPictures.h"

#include <limits>

using KnobFramesTest = ToolkitTest;

TEST_F(KnobFramesTest, AnImageIsDealtIntoSixteenColumnsAndSeventeenRows) {
    KnobFrames frames;
    // 16 x 8 and 17 x 9, and what is left over.
    frames.setImage(plainImage(130, 160, juce::Colours::red), 271);
    EXPECT_EQ(frames.getFrameWidth(), 8);
    EXPECT_EQ(frames.getFrameHeight(), 9);
    EXPECT_EQ(frames.getColumns(), 16);
    EXPECT_EQ(frames.getRows(), 17);
    EXPECT_EQ(frames.areaOf(0), juce::Rectangle<int>(0, 0, 8, 9));
    EXPECT_EQ(frames.areaOf(15), juce::Rectangle<int>(120, 0, 8, 9));
    EXPECT_EQ(frames.areaOf(16), juce::Rectangle<int>(0, 9, 8, 9));
    EXPECT_EQ(frames.areaOf(270), juce::Rectangle<int>(112, 144, 8, 9));
}

TEST_F(KnobFramesTest, AValueShowsTheNearestFrame) {
    KnobFrames frames;
    frames.setImage(plainImage(160, 170, juce::Colours::red), 271);
    EXPECT_EQ(frames.frameOf(0.0f), 0);
    EXPECT_EQ(frames.frameOf(0.5f), 135);
    EXPECT_EQ(frames.frameOf(1.0f), 270);
    EXPECT_EQ(frames.frameOf(0.0018f), 0); // 0.486
    EXPECT_EQ(frames.frameOf(0.0019f), 1); // 0.513
    EXPECT_EQ(frames.frameOf(7.0f), 270);
    EXPECT_EQ(frames.frameOf(-1.0f), 0);
    EXPECT_EQ(frames.frameOf(std::numeric_limits<float>::quiet_NaN()), 0);
    frames.setImage({}, 0);
    EXPECT_EQ(frames.frameOf(1.0f), 0);
}

TEST_F(KnobFramesTest, WithoutTheFlagAGridCountsDownItsColumns) {
    KnobFrames frames;
    frames.setImage(plainImage(40, 30, juce::Colours::red), 12);
    frames.setArrangement(4, 3, false);
    EXPECT_EQ(frames.areaOf(2), juce::Rectangle<int>(0, 20, 10, 10));
    EXPECT_EQ(frames.areaOf(3), juce::Rectangle<int>(10, 0, 10, 10));
    EXPECT_EQ(frames.areaOf(11), juce::Rectangle<int>(30, 20, 10, 10));
    frames.setArrangement(4, 3, true);
    EXPECT_EQ(frames.areaOf(3), juce::Rectangle<int>(30, 0, 10, 10));
    EXPECT_EQ(frames.areaOf(4), juce::Rectangle<int>(0, 10, 10, 10));
}

TEST_F(KnobFramesTest, AStripGoesDownOrWithTheFlagAcross) {
    KnobFrames frames;
    frames.setImage(plainImage(60, 60, juce::Colours::red), 6);
    frames.setArrangement(1, 1, false);
    EXPECT_EQ(frames.areaOf(4), juce::Rectangle<int>(0, 40, 60, 10));
    frames.setArrangement(1, 1, true);
    EXPECT_EQ(frames.areaOf(4), juce::Rectangle<int>(40, 0, 10, 60));
}

TEST_F(KnobFramesTest, AnImageTooSmallForItsGridIsNone) {
    KnobFrames frames;
    frames.setImage(plainImage(15, 100, juce::Colours::red), 271);
    EXPECT_FALSE(frames.hasImage());
}

TEST_F(KnobFramesTest, DrawsTheFrameAndNothingOfItsNeighboursAtAnySize) {
    KnobFrames frames;
    frames.setImage(gridImage(32, 32), 271);
    for (const int size : {16, 19, 31, 32, 50}) {
        juce::Image picture(juce::Image::ARGB, size + 10, size + 10, true);
        juce::Graphics g(picture);
        frames.draw(g, 100, {5, 5, size, size});
        for (const int place : {6, 5 + size / 2, 3 + size})
            EXPECT_LE(difference(picture.getPixelAt(place, place), colourOfFrame(100)), 2)
                << size << " at " << place;
        EXPECT_EQ(picture.getPixelAt(4, 4).getAlpha(), 0) << size;
        EXPECT_EQ(picture.getPixelAt(size + 6, size + 6).getAlpha(), 0) << size;
    }
}

TEST_F(KnobFramesTest, DrawsAtTheScreensOwnResolution) {
    KnobFrames frames;
    frames.setImage(gridImage(64, 64), 271);
    juce::Image picture(juce::Image::ARGB, 40, 40, true);
    {
        juce::Graphics g(picture);
        g.addTransform(juce::AffineTransform::scale(2.0f));
        frames.draw(g, 17, {2, 2, 16, 16});
    }
    EXPECT_LE(difference(picture.getPixelAt(5, 5), colourOfFrame(17)), 2);
    EXPECT_LE(difference(picture.getPixelAt(34, 34), colourOfFrame(17)), 2);
    EXPECT_EQ(picture.getPixelAt(37, 37).getAlpha(), 0);
}

TEST_F(KnobFramesTest, FollowsTheFrame) {
    KnobFrames frames;
    frames.setImage(gridImage(32, 32), 271);
    juce::Image picture(juce::Image::ARGB, 20, 20, true);
    for (const int frame : {3, 200, 3}) {
        juce::Graphics g(picture);
        frames.draw(g, frame, {0, 0, 20, 20});
        EXPECT_LE(difference(picture.getPixelAt(10, 10), colourOfFrame(frame)), 2) << frame;
    }
}
