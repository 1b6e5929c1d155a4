// SPDX-License-Identifier: GPL-3.0-or-later
// Where the arcs of a knob's ring begin and end, and what is drawn of them.
#include "widgets/controls/KnobRing.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/tests/support/TestPictures.h"

#include <cmath>
#include <limits>

namespace {

void expectArc(std::int32_t mode, float value, float second, float start, float end) {
    const auto arc = KnobRing::valueArc(mode, value, second);
    ASSERT_TRUE(arc.has_value()) << mode;
    EXPECT_FLOAT_EQ(arc->start, start) << mode << " " << value;
    EXPECT_FLOAT_EQ(arc->end, end) << mode << " " << value;
}

/// A point at an angle from the centre of the ring below.
juce::Colour at(const juce::Image& picture, float degrees, float radius) {
    const float angle = degrees / 180.0f * juce::MathConstants<float>::pi;
    const float x = 50.0f + radius * std::sin(angle);
    const float y = 49.0f - radius * std::cos(angle);
    return picture.getPixelAt(static_cast<int>(x), static_cast<int>(y));
}

/// A ring of 100 pixels, 10 wide: radii 48 and 38.
juce::Image drawn(KnobRing& ring, float value, const KnobRing::Look& look) {
    ring.setArea({0, 0, 100, 100}, 10.0f);
    juce::Image picture(juce::Image::ARGB, 100, 100, true);
    juce::Graphics g(picture);
    ring.draw(g, value, look);
    return picture;
}

constexpr float middle = 43.0f; ///< between the radii

KnobRing::Look greenLook() {
    KnobRing::Look look;
    look.frame = juce::Colours::white;
    return look;
}

} // namespace

using KnobRingTest = ToolkitTest;

TEST_F(KnobRingTest, FromTheMinimumItFollowsTheValue) {
    expectArc(2, 0.0f, 0.0f, -135.0f, -135.0f);
    expectArc(2, 0.25f, 0.0f, -135.0f, -67.5f);
    expectArc(2, 1.0f, 0.0f, -135.0f, 135.0f);
}

TEST_F(KnobRingTest, FromTheCentreItGoesToTheValuesSide) {
    expectArc(3, 0.5f, 0.0f, 0.0f, 0.0f);
    expectArc(3, 0.75f, 0.0f, 0.0f, 67.5f);
    expectArc(3, 1.0f, 0.0f, 0.0f, 135.0f);
    expectArc(3, 0.25f, 0.0f, -67.5f, 0.0f);
    expectArc(3, 0.0f, 0.0f, -135.0f, 0.0f);
}

TEST_F(KnobRingTest, BothWaysItSpreadsFromTheTop) {
    expectArc(4, 0.4f, 0.0f, 54.0f, -54.0f);
    expectArc(8, 0.4f, 0.0f, 81.0f, -81.0f);
    expectArc(8, 1.0f, 0.0f, 0.0f, 0.0f);
}

TEST_F(KnobRingTest, OfTheSecondValueItTurnsAwayFromTheTrack) {
    expectArc(5, 0.9f, 0.1f, -135.0f, -162.0f);
    expectArc(5, 0.9f, 0.0f, -135.0f, -135.0f);
}

TEST_F(KnobRingTest, FromTheMaximumItComesDown) {
    expectArc(6, 1.0f, 0.3f, 135.0f, 135.0f);
    expectArc(6, 0.75f, 0.3f, 135.0f, 67.5f);
    expectArc(6, 0.0f, 0.3f, 135.0f, -135.0f);
    expectArc(7, 0.75f, 0.3f, 135.0f, -54.0f);
}

TEST_F(KnobRingTest, OtherModesHaveNone) {
    for (const std::int32_t mode : {-1, 0, 1, 9, 100})
        EXPECT_FALSE(KnobRing::valueArc(mode, 0.5f, 0.5f).has_value()) << mode;
}

TEST_F(KnobRingTest, WhatIsNotANumberCountsAsZero) {
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    expectArc(2, notANumber, 0.0f, -135.0f, -135.0f);
    expectArc(7, 0.5f, notANumber, 135.0f, -135.0f);
    KnobRing ring;
    ring.setSecondValue(notANumber);
    EXPECT_EQ(ring.getSecondValue(), 0.0f);
    ring.setArea({0, 0, 100, 100}, notANumber);
    EXPECT_EQ(ring.getInnerRadius(), ring.getOuterRadius());
}

TEST_F(KnobRingTest, ItsShapeIsTheAreaBetweenTwoRadiiAndTwoAngles) {
    const juce::Path shape = KnobRing::shape({50.0f, 50.0f}, 40.0f, 30.0f, {0.0f, 90.0f});
    EXPECT_TRUE(shape.contains(50.0f + 24.7f, 50.0f - 24.7f)); // 45 degrees, radius 35
    EXPECT_FALSE(shape.contains(50.0f - 24.7f, 50.0f - 24.7f));
    EXPECT_FALSE(shape.contains(50.0f + 17.7f, 50.0f - 17.7f)); // radius 25
    EXPECT_FALSE(shape.contains(50.0f + 31.8f, 50.0f - 31.8f)); // radius 45
    const juce::Rectangle<float> bounds = shape.getBounds();
    EXPECT_NEAR(bounds.getX(), 50.0f, 0.5f);
    EXPECT_NEAR(bounds.getRight(), 90.0f, 0.5f);
    EXPECT_NEAR(bounds.getY(), 10.0f, 0.5f);
    EXPECT_NEAR(bounds.getBottom(), 50.0f, 0.5f);
}

TEST_F(KnobRingTest, TheArcIsInTheAccentOverABlackTrack) {
    KnobRing ring;
    ring.setMode(KnobRing::fromMinimum);
    const juce::Image picture = drawn(ring, 0.5f, greenLook());
    EXPECT_FLOAT_EQ(ring.getOuterRadius(), 48.0f);
    EXPECT_FLOAT_EQ(ring.getInnerRadius(), 38.0f);
    EXPECT_LE(difference(at(picture, -90.0f, middle), juce::Colour(0, 255, 0)), 2);
    EXPECT_LE(difference(at(picture, -20.0f, middle), juce::Colour(0, 255, 0)), 2);
    EXPECT_LE(difference(at(picture, 20.0f, middle), juce::Colours::black), 2);
    EXPECT_LE(difference(at(picture, 90.0f, middle), juce::Colours::black), 2);
    // Neither below nor inside.
    EXPECT_EQ(at(picture, 180.0f, middle).getAlpha(), 0);
    EXPECT_EQ(at(picture, 0.0f, 20.0f).getAlpha(), 0);
}

TEST_F(KnobRingTest, TheTracksOutlineIsAQuarterOfTheFrameColour) {
    KnobRing ring;
    ring.setMode(KnobRing::fromMinimum);
    // At 90 degrees the outline lies between 97.5 and 98.5; both pixels have half of it.
    const juce::Image picture = drawn(ring, 0.0f, greenLook());
    const juce::Colour inside = picture.getPixelAt(97, 49);
    EXPECT_NEAR(inside.getRed(), 255 * 0.25 * 0.5, 10.0);
    EXPECT_EQ(inside.getRed(), inside.getGreen());
}

TEST_F(KnobRingTest, ADisabledOneIsATrackAtFortyPercent) {
    KnobRing ring;
    ring.setMode(KnobRing::fromMinimum);
    KnobRing::Look look = greenLook();
    look.isEnabled = false;
    const juce::Image disabled = drawn(ring, 1.0f, look);
    EXPECT_LE(difference(at(disabled, 0.0f, middle), juce::Colours::black.withAlpha(0.4f)), 2);
    look.alwaysDrawn = true;
    const juce::Colour both = at(drawn(ring, 1.0f, look), 0.0f, middle);
    // The arc at 0.4 over the track at 0.4: opacity 1 - 0.6 x 0.6, green 0.4 / 0.64 of 255.
    EXPECT_NEAR(both.getAlpha(), 0.64 * 255, 2.0);
    EXPECT_NEAR(both.getGreen(), 0.4 / 0.64 * 255, 3.0);
}

TEST_F(KnobRingTest, EnabledAgainItIsBlackAgain) {
    KnobRing ring;
    ring.setMode(KnobRing::fromMinimum);
    KnobRing::Look look = greenLook();
    look.isEnabled = false;
    drawn(ring, 0.0f, look);
    look.isEnabled = true;
    EXPECT_LE(difference(at(drawn(ring, 0.0f, look), 0.0f, middle), juce::Colours::black), 2);
}

TEST_F(KnobRingTest, AnUnknownModeDrawsNothingAtAll) {
    KnobRing ring;
    ring.setMode(1);
    const juce::Image picture = drawn(ring, 1.0f, greenLook());
    for (float degrees = 0.0f; degrees < 360.0f; degrees += 10.0f)
        EXPECT_EQ(at(picture, degrees, middle).getAlpha(), 0) << degrees;
}

TEST_F(KnobRingTest, ARingThatIsTooWideLeavesRoomForTheKnob) {
    KnobRing ring;
    ring.setArea({0, 0, 100, 100}, 500.0f);
    EXPECT_GT(ring.getInnerRadius(), 10.0f);
    ring.setArea({0, 0, 100, 100}, -3.0f);
    EXPECT_EQ(ring.getInnerRadius(), ring.getOuterRadius());
    ring.setArea({0, 0, 2, 2}, 4.0f);
    EXPECT_EQ(ring.getOuterRadius(), 0.0f);
}
