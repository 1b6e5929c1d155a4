// SPDX-License-Identifier: GPL-3.0-or-later
// Pixels of the generated backgrounds.
#include "widgets/ui/appearance/BackgroundGradient.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using juce::Colour;

const BackgroundGradient plain{.top = Colour(115, 115, 115), .bottom = Colour(8, 8, 8)};
const BackgroundGradient lit{
    .top = Colour(115, 115, 115), .bottom = Colour(8, 8, 8), .hasHighlights = true};

double meanOfRow(const juce::Image& image, int y) {
    double sum = 0.0;
    for (int x = 0; x < image.getWidth(); ++x)
        sum += image.getPixelAt(x, y).getRed();
    return sum / image.getWidth();
}

int red(const juce::Image& image, int x, int y) {
    return image.getPixelAt(x, y).getRed();
}

// 87 + 0.164 * (255 - 87) = 114.55, 87 * (1 - 0.91) = 7.83.
TEST(BackgroundBrightness, ofTheDefaultsIsALittleBrighterAndNearlyBlack) {
    const Colour grey(0xFF575757);
    EXPECT_EQ(BackgroundGradient::atBrightness(grey, 0.164F), Colour(115, 115, 115));
    EXPECT_EQ(BackgroundGradient::atBrightness(grey, -0.91F), Colour(8, 8, 8));
}

// 200 + 0.5 * 55 = 227.5, 100 + 0.5 * 155 = 177.5, 0 + 0.5 * 255 = 127.5; halves go up.
TEST(BackgroundBrightness, movesEachChannelByTheSamePart) {
    const Colour colour(200, 100, 0);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, 0.5F), Colour(228, 178, 128));
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, -0.5F), Colour(100, 50, 0));
}

TEST(BackgroundBrightness, ofNothingIsTheColourAndAtTheEndsWhiteAndBlack) {
    const Colour colour(200, 100, 50);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, 0.0F), colour);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, 1.0F), juce::Colours::white);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, -1.0F), juce::Colours::black);
}

TEST(BackgroundBrightness, takesNumbersBeyondTheEndsForTheEndsAndWhatIsNoneForNothing) {
    using Limits = std::numeric_limits<float>;
    const Colour colour(200, 100, 50);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, 50.0F), juce::Colours::white);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, -50.0F), juce::Colours::black);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, Limits::infinity()), juce::Colours::white);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, -Limits::max()), juce::Colours::black);
    EXPECT_EQ(BackgroundGradient::atBrightness(colour, Limits::quiet_NaN()), colour);
}

TEST(BackgroundBrightness, leavesNothingTransparent) {
    EXPECT_EQ(BackgroundGradient::atBrightness(Colour(0x00102030), 0.0F), Colour(0xFF102030));
}

TEST(BackgroundGradient, beginsAndEndsInItsColours) {
    const juce::Image image = plain.image(40, 200);
    for (int x = 0; x < 40; ++x) {
        EXPECT_EQ(image.getPixelAt(x, 0), Colour(115, 115, 115)) << x;
        EXPECT_EQ(image.getPixelAt(x, 199), Colour(8, 8, 8)) << x;
    }
}

// From 115 to 8 in 200 steps: 115 - 0.535 a row.
TEST(BackgroundGradient, runsEvenlyFromOneToTheOther) {
    const juce::Image image = plain.image(64, 201);
    for (const int y : {20, 77, 100, 150, 199})
        EXPECT_NEAR(meanOfRow(image, y), 115.0 - 0.535 * y, 0.1) << y;
}

TEST(BackgroundGradient, hasChannelsThatGoTheirOwnWays) {
    const BackgroundGradient colours{.top = Colour(0, 200, 50), .bottom = Colour(100, 0, 50)};
    const juce::Image image = colours.image(8, 101);
    const Colour middle = image.getPixelAt(3, 50);
    EXPECT_EQ(middle.getRed(), 50);
    EXPECT_EQ(middle.getGreen(), 100);
    EXPECT_EQ(middle.getBlue(), 50);
}

// Bands would be rows of one level each. A row between two levels has pixels of both, evenly mixed,
// and of no other.
TEST(BackgroundGradient, mixesTheTwoNearestLevelsInARow) {
    const BackgroundGradient slow{.top = Colour(10, 10, 10), .bottom = Colour(12, 12, 12)};
    const juce::Image image = slow.image(64, 401);
    // A quarter of the way: 10.5.
    int upper = 0;
    for (int y = 96; y < 104; ++y) {
        for (int x = 0; x < 64; ++x) {
            ASSERT_TRUE(red(image, x, y) == 10 || red(image, x, y) == 11);
            upper += red(image, x, y) == 11 ? 1 : 0;
        }
    }
    EXPECT_NEAR(upper, 256, 8);
}

TEST(BackgroundGradient, isOpaqueAndOfTheSizeAskedFor) {
    const juce::Image image = plain.image(31, 17);
    EXPECT_EQ(image.getWidth(), 31);
    EXPECT_EQ(image.getHeight(), 17);
    EXPECT_FALSE(image.hasAlphaChannel());
}

TEST(BackgroundGradient, ofOneRowOrNoneIsOneRow) {
    EXPECT_EQ(plain.image(5, 1).getPixelAt(4, 0), Colour(115, 115, 115));
    EXPECT_EQ(plain.image(0, -3).getHeight(), 1);
    EXPECT_EQ(lit.image(1, 1).getWidth(), 1);
}

TEST(BackgroundHighlights, areTheSameEveryTime) {
    const juce::Image one = lit.image(300, 260);
    const juce::Image other = lit.image(300, 260);
    for (int y = 0; y < 260; y += 3) {
        for (int x = 0; x < 300; ++x)
            ASSERT_EQ(one.getPixelAt(x, y), other.getPixelAt(x, y)) << x << ", " << y;
    }
}

TEST(BackgroundHighlights, onlyBrightenAndNeverMuch) {
    const juce::Image without = plain.image(300, 260);
    const juce::Image with = lit.image(300, 260);
    int brightest = 0;
    for (int y = 3; y < 260; ++y) {
        for (int x = 0; x < 300; ++x) {
            const int more = red(with, x, y) - red(without, x, y);
            ASSERT_GE(more, 0) << x << ", " << y;
            brightest = std::max(brightest, more);
        }
    }
    // A streak, 0.105 of the way to white near the top: 0.105 * (255 - 113) = 15; the edge adds a
    // twentieth.
    EXPECT_GT(brightest, 12);
    EXPECT_LT(brightest, 30);
}

// Towards white by 0.25 in the uppermost row: 115 + 0.25 * 140 = 150.
TEST(BackgroundHighlights, haveAnEdgeAtTheTop) {
    const juce::Image image = lit.image(930, 815);
    EXPECT_NEAR(red(image, 0, 0), 150, 3);
    EXPECT_LT(red(image, 0, 8), 130);
}

TEST(BackgroundHighlights, leanToTheLeft) {
    const juce::Image image = lit.image(500, 500);
    const auto brightestIn = [&image](int y) {
        int best = 0;
        int sum = -1;
        for (int x = 0; x + 16 <= image.getWidth(); ++x) {
            int here = 0;
            for (int i = 0; i < 16; ++i)
                here += red(image, x + i, y);
            if (here > sum) {
                sum = here;
                best = x;
            }
        }
        return best;
    };
    // Two pixels to the left for each five down.
    EXPECT_NEAR(brightestIn(40) - brightestIn(240), 80, 20);
}

// An edge inside the panel would show as a line. A level of the pattern and a level on the slope of
// a streak are none.
TEST(BackgroundHighlights, haveNoEdgesElsewhere) {
    const juce::Image image = lit.image(930, 815);
    for (int y = 20; y < 815; ++y) {
        for (int x = 1; x < 930; ++x) {
            ASSERT_LE(std::abs(red(image, x, y) - red(image, x - 1, y)), 2) << x << ", " << y;
            ASSERT_LE(std::abs(red(image, x, y) - red(image, x, y - 1)), 2) << x << ", " << y;
        }
    }
}

} // namespace
