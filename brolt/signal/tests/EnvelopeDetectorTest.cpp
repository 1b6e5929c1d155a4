// SPDX-License-Identifier: GPL-3.0-or-later
//
// The follower and its hysteresis.

#include "brolt/signal/EnvelopeDetector.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr float attack = 0.5F;
constexpr float release = 0.25F;

/// Runs a constant for one block, clamp included, and answers the envelope.
std::vector<float> hold(EnvelopeDetector& detector, float input, std::size_t frames) {
    const std::vector<float> samples(frames, input);
    std::vector<float> envelope(frames);
    detector.follow(samples.data(), envelope.data(), static_cast<int32_t>(frames), attack, release);
    detector.clampDirection();
    return envelope;
}

} // namespace

TEST(EnvelopeDetector, theFirstRisingSampleAlreadyMovesAFreshDetector) {
    // 0 + 1/2 (1 - 0) = 1/2, then 3/4, 7/8.
    EnvelopeDetector detector;
    EXPECT_EQ(hold(detector, 1.0F, 3), (std::vector<float>{0.5F, 0.75F, 0.875F}));
    EXPECT_EQ(detector.direction, 3);
}

TEST(EnvelopeDetector, anEqualSampleCountsAsFalling) {
    EnvelopeDetector detector{0.5F, 0};
    hold(detector, 0.5F, 1);
    EXPECT_EQ(detector.direction, -1);
    EXPECT_EQ(detector.level, 0.5F);
}

TEST(EnvelopeDetector, fallsWithTheReleaseRate) {
    // 1 + 1/4 (0 - 1) = 3/4, then 9/16.
    EnvelopeDetector detector{1.0F, 0};
    EXPECT_EQ(hold(detector, 0.0F, 2), (std::vector<float>{0.75F, 0.5625F}));
}

TEST(EnvelopeDetector, afterSilenceAnOnsetIsIgnoredUntil801RisingSamplesPassed) {
    EnvelopeDetector detector;
    hold(detector, 0.0F, 5000);
    ASSERT_EQ(detector.direction, -800);

    const std::vector<float> envelope = hold(detector, 1.0F, 802);
    for (std::size_t i = 0; i < 800; ++i)
        ASSERT_EQ(envelope[i], 0.0F) << i;
    EXPECT_EQ(envelope[800], 0.5F);
    EXPECT_EQ(envelope[801], 0.75F);
}

TEST(EnvelopeDetector, afterALongRiseTheLevelIsHeldFor799SamplesAndFallsWithThe800th) {
    // The counter stands at 800: the 800th falling sample brings it to 0, which lets it fall.
    EnvelopeDetector detector;
    for (int block = 0; block < 2; ++block) {
        std::vector<float> ramp(1000);
        std::vector<float> envelope(1000);
        for (std::size_t i = 0; i < ramp.size(); ++i)
            ramp[i] = static_cast<float>(1000 * block) + static_cast<float>(i) + 1.0F;
        detector.follow(ramp.data(), envelope.data(), 1000, attack, release);
        detector.clampDirection();
    }
    ASSERT_EQ(detector.direction, 800);

    const float top = detector.level;
    const std::vector<float> envelope = hold(detector, 0.0F, 801);
    for (std::size_t i = 0; i < 799; ++i)
        ASSERT_EQ(envelope[i], top) << i;
    EXPECT_FLOAT_EQ(envelope[799], 0.75F * top);
    EXPECT_FLOAT_EQ(envelope[800], 0.5625F * top);
}

TEST(EnvelopeDetector, aSpikeAgainstARunOfFallingSamplesIsNotFollowed) {
    EnvelopeDetector detector{1.0F, 0};
    hold(detector, 0.0F, 10);
    const float before = detector.level;
    hold(detector, 1.0F, 1);
    EXPECT_EQ(detector.level, before);
    EXPECT_EQ(detector.direction, -9);
}

TEST(EnvelopeDetector, insideABlockTheCounterRunsPastItsLimits) {
    // 2000 falling samples and the onset in one block: 2001 rising samples are needed, not 801.
    EnvelopeDetector detector;
    std::vector<float> samples(2000, 0.0F);
    samples.resize(4001, 1.0F);
    std::vector<float> envelope(samples.size());
    detector.follow(samples.data(), envelope.data(), 4001, attack, release);
    EXPECT_EQ(envelope[3999], 0.0F);
    EXPECT_EQ(envelope[4000], 0.5F);
}

TEST(EnvelopeDetector, theClampBringsTheCounterToItsNearerLimit) {
    EnvelopeDetector detector{0.0F, 801};
    detector.clampDirection();
    EXPECT_EQ(detector.direction, 800);
    detector.direction = -801;
    detector.clampDirection();
    EXPECT_EQ(detector.direction, -800);
    detector.direction = -799;
    detector.clampDirection();
    EXPECT_EQ(detector.direction, -799);
}

TEST(EnvelopeDetector, neverGoesBelowZero) {
    // A rate above 1 overshoots: 1 + 2 (0 - 1) = -1, floored to 0.
    EnvelopeDetector detector{1.0F, 0};
    const float input = 0.0F;
    float envelope = -1.0F;
    detector.follow(&input, &envelope, 1, attack, 2.0F);
    EXPECT_EQ(envelope, 0.0F);
}

TEST(EnvelopeDetector, theFullRateReachesTheInputAtOnce) {
    EnvelopeDetector detector;
    const float input = 0.625F;
    float envelope = 0.0F;
    detector.follow(&input, &envelope, 1, 1.0F, 1.0F);
    EXPECT_EQ(envelope, 0.625F);
}

TEST(EnvelopeDetector, recoversFromNanAndInfinity) {
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38F}) {
        EnvelopeDetector detector;
        hold(detector, bad, 7);
        hold(detector, 0.5F, 2000);
        hold(detector, 0.25F, 2000);
        EXPECT_NEAR(detector.level, 0.25F, 1e-3F) << bad;
    }
}

TEST(EnvelopeDetector, coversNineTenthsOfAStepInTheGivenTime) {
    // 2 ms are 88.2 samples: 1 - 0.1^(88/88.2) = 0.89948, 1 - 0.1^(89/88.2) = 0.90207.
    const Coefficients record = recordOf(defaultParameters());
    EnvelopeDetector detector;
    const std::vector<float> samples(89, 1.0F);
    std::vector<float> envelope(89);
    detector.follow(samples.data(), envelope.data(), 89, record.levelAttack, record.levelRelease);
    EXPECT_NEAR(envelope[87], 0.89948F, 1e-5F);
    EXPECT_NEAR(envelope[88], 0.90207F, 1e-5F);
}
