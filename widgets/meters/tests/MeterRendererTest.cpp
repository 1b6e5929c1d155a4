// SPDX-License-Identifier: GPL-3.0-or-later
// Holds, glow and the question whether anything has to be drawn, on a clock of the test's.
#include "widgets/meters/MeterRenderer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class MeterRendererTest : public ::testing::Test {
protected:
    MeterRendererTest() { renderer.setArea({2, 10, 12, 200}, {2, 2, 12, 6}); }

    void paint() {
        juce::Graphics g(picture);
        renderer.paint(g, data);
    }

    void setLevels(float peak, float mean) {
        data.level[0] = peak;
        data.level[1] = mean;
    }

    [[nodiscard]] juce::Colour pixel(int x, int y) const { return picture.getPixelAt(x, y); }

    std::int64_t now = 1000000;
    juce::Image picture{juce::Image::ARGB, 220, 220, true};
    MeterRenderer renderer{[this] { return now; }};
    MeterData data;
};

} // namespace

TEST_F(MeterRendererTest, StandsUprightWhenItIsHigherThanWide) {
    EXPECT_TRUE(renderer.isVertical());
    renderer.setArea({0, 0, 100, 20});
    EXPECT_FALSE(renderer.isVertical());
    renderer.setArea({0, 0, 20, 20});
    EXPECT_FALSE(renderer.isVertical());
}

TEST_F(MeterRendererTest, PositionsRunUpwardsOrToTheRight) {
    EXPECT_FLOAT_EQ(renderer.positionOf(1.0), 10.0f);
    EXPECT_FLOAT_EQ(renderer.positionOf(0.0), 210.0f);
    // log10(1.9) * 200 = 55.75 above the bottom
    EXPECT_NEAR(renderer.positionOf(0.1), 154.249f, 0.001f);
    renderer.setArea({10, 0, 200, 12});
    EXPECT_FLOAT_EQ(renderer.positionOf(0.0), 10.0f);
    EXPECT_NEAR(renderer.positionOf(0.1), 65.751f, 0.001f);
}

TEST_F(MeterRendererTest, ASampleAtFullScaleLightsTheClipColourWhichFadesByAFifthAPicture) {
    setLevels(0.99993896f, 0.1f);
    paint();
    EXPECT_EQ(renderer.getClipGlow(), 0.0f);
    setLevels(0.9999391f, 0.1f);
    paint();
    EXPECT_EQ(renderer.getClipColour(), juce::Colour(255, 0, 0));
    EXPECT_EQ(pixel(8, 5), juce::Colour(255, 0, 0));
    setLevels(0.5f, 0.1f);
    paint();
    EXPECT_FLOAT_EQ(renderer.getClipGlow(), 0.8f);
    EXPECT_EQ(renderer.getClipColour(), juce::Colour(204, 0, 0));
    EXPECT_EQ(pixel(8, 5), juce::Colour(204, 0, 0));
    paint();
    EXPECT_FLOAT_EQ(renderer.getClipGlow(), 0.64f);
}

TEST_F(MeterRendererTest, OtherMappingsHaveNoClipColour) {
    renderer.setMapping({MeterMappingMode::logarithmic, 0.001, 2.0, 9.0});
    setLevels(1.5f, 0.1f);
    paint();
    EXPECT_EQ(renderer.getClipGlow(), 0.0f);
}

TEST_F(MeterRendererTest, AHoldStaysForTwoSecondsAfterItsLastRiseAndDropsToTheLevel) {
    setLevels(0.25f, 0.1f);
    paint();
    now += 1500;
    setLevels(0.5f, 0.05f);
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.5f);
    EXPECT_EQ(renderer.getHeldLevel(1), 0.1f);
    setLevels(0.125f, 0.05f);
    // Exactly two seconds do not exceed two seconds.
    now += 2000;
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.5f);
    EXPECT_FALSE(renderer.needsRedraw(data));
    now += 17;
    EXPECT_TRUE(renderer.needsRedraw(data));
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.0f);
    EXPECT_TRUE(renderer.needsRedraw(data));
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.125f);
    EXPECT_EQ(renderer.getHeldLevel(1), 0.05f);
    EXPECT_FALSE(renderer.needsRedraw(data));
}

TEST_F(MeterRendererTest, AReleaseClearsWhatTheSourceHeldAndCounted) {
    setLevels(0.25f, 0.1f);
    data.hold[0] = 0.75f;
    data.overloads[0] = 2;
    data.overloads[1] = 3;
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.75f);
    EXPECT_EQ(renderer.getOverloads(0), 2);
    data.overloads[0] = 1;
    paint();
    EXPECT_EQ(renderer.getOverloads(0), 2);
    now += 2100;
    paint();
    EXPECT_EQ(data.hold[0], 0.0f);
    EXPECT_EQ(data.overloads[1], 0);
    EXPECT_EQ(renderer.getOverloads(1), 0);
}

TEST_F(MeterRendererTest, HoldsStayForeverWhenTheirReleaseIsOff) {
    renderer.setHoldEnabled(false);
    setLevels(0.25f, 0.1f);
    paint();
    setLevels(0.0f, 0.0f);
    now += 3600000;
    paint();
    EXPECT_EQ(renderer.getHeldLevel(0), 0.25f);
}

TEST_F(MeterRendererTest, NothingIsDrawnAgainWhileNothingChanges) {
    EXPECT_TRUE(renderer.needsRedraw(data));
    paint();
    EXPECT_FALSE(renderer.needsRedraw(data));
    now += 60000;
    EXPECT_FALSE(renderer.needsRedraw(data));
    // Both below the lowest mark.
    setLevels(1e-6f, 1e-7f);
    EXPECT_FALSE(renderer.needsRedraw(data));
    data.level[0] = 1.1e-6f;
    EXPECT_TRUE(renderer.needsRedraw(data));
    paint();
    data.level[0] = 0.0f;
    EXPECT_TRUE(renderer.needsRedraw(data));
}

TEST_F(MeterRendererTest, EveryFieldOfTheDataIsAReasonToDraw) {
    const auto change = [&](auto&& alter) {
        data = {};
        paint();
        alter(data);
        return renderer.needsRedraw(data);
    };
    EXPECT_TRUE(change([](MeterData& d) { d.level[0] = 0.1f; }));
    EXPECT_TRUE(change([](MeterData& d) { d.level[1] = 0.1f; }));
    EXPECT_TRUE(change([](MeterData& d) { d.hold[0] = 0.1f; }));
    EXPECT_TRUE(change([](MeterData& d) { d.hold[1] = 0.1f; }));
    EXPECT_TRUE(change([](MeterData& d) { d.envelope = 0.1f; }));
    EXPECT_TRUE(change([](MeterData& d) { d.overloads[0] = 1; }));
    EXPECT_TRUE(change([](MeterData& d) { d.overloads[1] = 1; }));
    EXPECT_TRUE(change([](MeterData& d) { d.weighting = 1.0f; }));
}

TEST_F(MeterRendererTest, TheGlowIsDrawnUntilItIsGone) {
    setLevels(1.0f, 0.1f);
    paint();
    setLevels(0.0f, 0.0f);
    int pictures = 0;
    while (renderer.getClipGlow() > 0.0f && pictures < 100) {
        EXPECT_TRUE(renderer.needsRedraw(data));
        paint();
        ++pictures;
    }
    // 0.8 ^ 24 > 1 / 255 > 0.8 ^ 25
    EXPECT_EQ(pictures, 25);
}

TEST_F(MeterRendererTest, BarsReachTheirLevelsInTheColoursOfTheirZones) {
    // Up to log10(5.5) * 200 = 148 and log10(1.09) * 200 = 7.5 pixels.
    setLevels(0.5f, 0.01f);
    paint();
    EXPECT_EQ(renderer.getDrawnExtent(0), 148);
    EXPECT_EQ(renderer.getDrawnExtent(1), 7);
    const int middle = 7;
    // The mean: green and hardly anything else.
    EXPECT_GT(pixel(middle, 206).getGreen(), 200);
    EXPECT_LT(pixel(middle, 206).getRed(), 60);
    // The peak: half as bright. Above it the ground.
    EXPECT_GT(pixel(middle, 150).getGreen(), 100);
    EXPECT_LT(pixel(middle, 40).getGreen(), 60);
    // At full scale red.
    setLevels(1.0f, 1.0f);
    paint();
    EXPECT_GT(pixel(middle, 16).getRed(), 240);
    EXPECT_LT(pixel(middle, 16).getGreen(), 30);
}

TEST_F(MeterRendererTest, AHoldIsMarkedAboveTheBarUnlessThePresetHasNoMarks) {
    setLevels(0.5f, 0.01f);
    paint();
    setLevels(0.01f, 0.01f);
    paint();
    // 148 pixels from the bottom at 210
    EXPECT_GT(pixel(7, 62).getGreen(), 200);
    renderer.setPreset({0.0, 0.0, true});
    paint();
    EXPECT_LT(pixel(7, 62).getGreen(), 60);
}

TEST_F(MeterRendererTest, DrawsSidewaysWhenItIsWide) {
    renderer.setArea({10, 10, 200, 12});
    setLevels(0.5f, 0.01f);
    paint();
    EXPECT_GT(pixel(100, 16).getGreen(), 100);
    EXPECT_LT(pixel(180, 16).getGreen(), 60);
}

TEST_F(MeterRendererTest, AnEmptyAreaDrawsNothingAndAsksForNothing) {
    picture.clear(picture.getBounds());
    renderer.setArea({});
    setLevels(0.5f, 0.1f);
    paint();
    EXPECT_EQ(pixel(7, 200).getAlpha(), 0);
    EXPECT_FALSE(renderer.needsRedraw(data));
}

TEST_F(MeterRendererTest, LevelsBeyondFullScaleEndWithTheMeter) {
    setLevels(16.0f, 4.0f);
    paint();
    EXPECT_EQ(renderer.getDrawnExtent(0), 200);
    EXPECT_EQ(renderer.getDrawnExtent(1), 200);
}
