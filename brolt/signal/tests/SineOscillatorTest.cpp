// SPDX-License-Identifier: GPL-3.0-or-later
//
// The oscillator: its angle, its sweep, its amplitude, and that nothing puts it out of action.

#include "brolt/signal/SineOscillator.h"

#include "brolt/signal/ScopedFlushToZero.h"
#include "brolt/signal/tests/BroltTestKit.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

namespace {

/// A run with one envelope value throughout.
std::vector<float> hold(SineOscillator& oscillator, float envelope, std::size_t frames,
                        float attackT, float sustainT, float* lastS = nullptr) {
    const std::vector<float> pitch(frames, envelope);
    std::vector<float> output(frames);
    const float s = oscillator.run(pitch.data(), output.data(), static_cast<int32_t>(frames),
                                   attackT, sustainT);
    if (lastS != nullptr)
        *lastS = s;
    return output;
}

int upwardZeroCrossings(const std::vector<float>& samples) {
    int crossings = 0;
    for (std::size_t i = 1; i < samples.size(); ++i)
        crossings += samples[i - 1] <= 0.0F && samples[i] > 0.0F ? 1 : 0;
    return crossings;
}

Coefficients recordWithFrequencies(float attack, float sustain) {
    BroltParameters parameters = defaultParameters();
    parameters.osc1AttackFrequency = attack;
    parameters.osc1SustainFrequency = sustain;
    return recordOf(parameters);
}

} // namespace

TEST(SineOscillator, aCoefficientOfZeroTurnsByAQuarterCircle) {
    // s = 0, c = 1: (0, 1) -> (1, 0) -> (0, -1) -> (-1, 0), exactly.
    SineOscillator oscillator;
    float lastS = 1.0F;
    EXPECT_EQ(hold(oscillator, 0.0F, 8, 1.0F, 0.0F, &lastS),
              (std::vector<float>{0, 1, 0, -1, 0, 1, 0, -1}));
    EXPECT_EQ(lastS, 0.0F);
}

TEST(SineOscillator, aCoefficientOfOneStandsStill) {
    SineOscillator oscillator;
    float lastS = 0.0F;
    EXPECT_EQ(hold(oscillator, 0.7F, 1000, 1.0F, 1.0F, &lastS), std::vector<float>(1000, 0.0F));
    EXPECT_EQ(lastS, 1.0F);
    EXPECT_EQ(oscillator.y, 1.0F);
}

TEST(SineOscillator, startsAtPhaseZeroAndFollowsTheSineOfItsAngle) {
    // s carries an error of up to 2^-25, which is 2^-25 / sin(angle) in the angle of every step.
    for (const float frequency : {20.0F, 60.0F, 100.0F, 440.0F, 5000.0F}) {
        const Coefficients record = recordWithFrequencies(frequency, 50.0F);
        SineOscillator oscillator;
        const std::vector<float> output =
            hold(oscillator, 1.0F, 2000, record.osc1AttackT, record.osc1SustainT);
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(frequency) / 44100.0;
        const double anglesError = 0x1p-23 / std::sin(angle);
        for (std::size_t n = 0; n < output.size(); ++n) {
            const double steps = static_cast<double>(n);
            ASSERT_NEAR(static_cast<double>(output[n]), std::sin(steps * angle),
                        1e-5 + steps * anglesError)
                << frequency << " Hz, sample " << n;
        }
    }
}

TEST(SineOscillator, aHundredHertzGiveAHundredPeriodsIn44100Samples) {
    const Coefficients record = recordWithFrequencies(100.0F, 60.0F);
    SineOscillator attack;
    EXPECT_NEAR(
        upwardZeroCrossings(hold(attack, 1.0F, 44100, record.osc1AttackT, record.osc1SustainT)),
        100, 1);
    SineOscillator sustain;
    EXPECT_NEAR(
        upwardZeroCrossings(hold(sustain, 0.0F, 44100, record.osc1AttackT, record.osc1SustainT)),
        60, 1);
}

TEST(SineOscillator, aHostAt48KilohertzHearsTheFrequencyTimes48000By44100) {
    // The record does not know the host's rate: 100 Hz become 108.84 Hz.
    const Coefficients record = recordWithFrequencies(100.0F, 60.0F);
    SineOscillator oscillator;
    float lastS = 0.0F;
    hold(oscillator, 1.0F, 10, record.osc1AttackT, record.osc1SustainT, &lastS);
    const double hertz = std::acos(static_cast<double>(lastS)) / (2.0 * std::numbers::pi) * 48000.0;
    EXPECT_NEAR(hertz, 108.843, 0.05);

    SineOscillator second;
    const std::vector<float> oneSecond =
        hold(second, 1.0F, 48000, record.osc1AttackT, record.osc1SustainT);
    EXPECT_NEAR(upwardZeroCrossings(oneSecond), 109, 1);
}

TEST(SineOscillator, sweepsLinearlyInItsCoefficientAndNotInHertz) {
    // Halfway between t = 0.5 and t = 0.9 lies t = 0.7: s = 0.7 (3 - 0.49) / 2 = 0.8785.
    SineOscillator oscillator;
    float lastS = 0.0F;
    hold(oscillator, 0.5F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_NEAR(lastS, 0.8785F, 1e-6F);
    hold(oscillator, 0.0F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_NEAR(lastS, 0.9855F, 1e-6F); // 0.9 (3 - 0.81) / 2
    hold(oscillator, 1.0F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_NEAR(lastS, 0.6875F, 1e-6F); // 0.5 (3 - 0.25) / 2
}

TEST(SineOscillator, anEnvelopeAboveOneGoesPastTheAttackFrequencyUntilHalfTheSampleRate) {
    SineOscillator oscillator;
    float lastS = 0.0F;
    hold(oscillator, 2.0F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_NEAR(lastS, 0.1495F, 1e-6F); // t = 0.1: 0.1 (3 - 0.01) / 2
    hold(oscillator, 4.75F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_EQ(lastS, -1.0F); // t = -1 just reached
    hold(oscillator, 1e6F, 1, 0.5F, 0.9F, &lastS);
    EXPECT_EQ(lastS, -1.0F);
}

TEST(SineOscillator, aSweepUpwardsOfTheCoefficientStopsAtZeroHertz) {
    SineOscillator oscillator;
    float lastS = 0.0F;
    hold(oscillator, 1e6F, 1, 0.9F, 0.5F, &lastS);
    EXPECT_EQ(lastS, 1.0F);
}

TEST(SineOscillator, equalFrequenciesGiveAPitchThatDoesNotFollowTheEnvelope) {
    const Coefficients record = recordWithFrequencies(80.0F, 80.0F);
    TestRandom random(3);
    std::vector<float> pitch(3000);
    for (float& e : pitch)
        e = random.fraction() * 2.0F;
    std::vector<float> moving(pitch.size());
    SineOscillator oscillator;
    oscillator.run(pitch.data(), moving.data(), 3000, record.osc1AttackT, record.osc1SustainT);

    SineOscillator steady;
    EXPECT_EQ(moving, hold(steady, 0.0F, 3000, record.osc1AttackT, record.osc1SustainT));
}

TEST(SineOscillator, anEmptyRunAnswersZeroAndMovesNothing) {
    SineOscillator oscillator;
    hold(oscillator, 1.0F, 100, 0.5F, 0.9F);
    const std::vector<uint32_t> before = wordsOf(oscillator);
    EXPECT_EQ(oscillator.run(nullptr, nullptr, 0, 0.5F, 0.9F), 0.0F);
    EXPECT_EQ(wordsOf(oscillator), before);
}

TEST(SineOscillator, theAmplitudeStaysOneThroughALongSweep) {
    SineOscillator oscillator;
    TestRandom random(8);
    std::vector<float> pitch(1000);
    std::vector<float> output(1000);
    for (int block = 0; block < 2000; ++block) {
        for (float& e : pitch)
            e = random.fraction();
        oscillator.run(pitch.data(), output.data(), 1000, 0.97F, 0.999F);
        ASSERT_NEAR(std::hypot(oscillator.x, oscillator.y), 1.0F, 1e-6F) << block;
    }
}

TEST(SineOscillator, restartGoesBackToPhaseZero) {
    SineOscillator oscillator;
    hold(oscillator, 1.0F, 100, 0.5F, 0.9F);
    oscillator.restart();
    EXPECT_EQ(wordsOf(oscillator), wordsOf(SineOscillator{}));
}

// 1 - s^2 must not become negative through rounding: the root would be NaN, and x and y with it for
// ever. Up to |t| = 1/2 there is no danger (|s| <= 0.6875 and a few units in the last place); above
// it every single-precision number is tried. With attack 1 and sustain 0 the envelope is t.
TEST(SineOscillator, noCoefficientWhatsoeverTakesTheSquareRootOfANegativeNumber) {
    constexpr uint32_t half = 0x3f000000;
    constexpr uint32_t one = 0x3f800000;
    constexpr uint32_t chunk = 0x4000;
    SineOscillator oscillator;
    std::vector<float> coefficients(chunk);
    std::vector<float> output(chunk);
    for (const uint32_t sign : {0U, 0x80000000U}) {
        for (uint32_t bits = half; bits <= one; bits += chunk) {
            const uint32_t count = std::min(chunk, one - bits + 1);
            for (uint32_t i = 0; i < count; ++i)
                coefficients[i] = std::bit_cast<float>((bits + i) | sign);
            {
                const ScopedFlushToZero flush;
                oscillator.run(coefficients.data(), output.data(), static_cast<int32_t>(count),
                               1.0F, 0.0F);
            }
            ASSERT_TRUE(std::isfinite(oscillator.x) && std::isfinite(oscillator.y))
                << "one of " << count << " coefficients from " << coefficients[0];
        }
    }
}

TEST(SineOscillator, aSweepThatIsNotANumberCountsAsTheLowerLimit) {
    // Equal frequencies: infinity * 0.
    SineOscillator oscillator;
    float lastS = 0.0F;
    hold(oscillator, std::numeric_limits<float>::infinity(), 1, 0.9F, 0.9F, &lastS);
    EXPECT_EQ(lastS, -1.0F);
    hold(oscillator, std::numeric_limits<float>::quiet_NaN(), 1, 0.5F, 0.9F, &lastS);
    EXPECT_EQ(lastS, -1.0F);
}

TEST(SineOscillator, infinitiesAndNanInTheEnvelopeLeaveItOnTheUnitCircle) {
    using Limits = std::numeric_limits<float>;
    for (const float bad : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                            Limits::max(), -Limits::max()}) {
        for (const float attackT : {0.5F, 0.9F, 1.0F}) {
            SineOscillator oscillator;
            hold(oscillator, 0.5F, 100, attackT, 0.9F);
            hold(oscillator, bad, 100, attackT, 0.9F);
            hold(oscillator, 0.5F, 10, attackT, 0.9F);
            ASSERT_NEAR(std::hypot(oscillator.x, oscillator.y), 1.0F, 1e-6F) << bad;
        }
    }
}
