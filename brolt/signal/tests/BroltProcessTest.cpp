// SPDX-License-Identifier: GPL-3.0-or-later
//
// A block as a whole: detection, sweep, silence, layouts, block lengths.

#include "brolt/signal/tests/BroltTestKit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

std::vector<float> noise(uint64_t start, std::size_t frames, float amplitude = 1.0F) {
    TestRandom random(start);
    std::vector<float> samples(frames);
    for (float& sample : samples)
        sample = amplitude * random.sample();
    return samples;
}

bool allFinite(const BroltState<2>& state) {
    bool finite = true;
    for (const float value :
         {state.levelDetector.level, state.pitchDetector.level, state.oscillator1.x,
          state.oscillator1.y, state.oscillator2.x, state.oscillator2.y, state.osc1LastSine,
          state.osc2LastSine, state.outputGain, state.wetMix, state.osc1Gain, state.osc2Gain})
        finite = finite && std::isfinite(value);
    return finite;
}

} // namespace

TEST(Brolt, aFreshRecordRendersSilence) {
    // Only the tones are to be heard, and oscillators with a coefficient of 1 stand still.
    TestProcessor<2> processor;
    const auto output = processor.run({noise(1, 1000), noise(2, 1000)}, Coefficients{});
    for (const std::vector<float>& channel : output) {
        for (const float sample : channel)
            ASSERT_EQ(sample, 0.0F);
    }
    EXPECT_GT(processor.state.levelDetector.level, 0.0F);
}

TEST(Brolt, anEmptyBlockDoesWhatBelongsToTheEndOfABlock) {
    for (const int32_t frames : {0, -1, std::numeric_limits<int32_t>::min()}) {
        TestProcessor<2> processor;
        BroltState<2>& state = processor.state;
        state.firstBlock = 0;
        state.outputGain = 0.25F;
        state.wetMix = 0.5F;
        state.osc1Gain = 0.125F;
        state.osc2Gain = 0.0625F;
        state.osc1LastSine = 0.9F;
        state.osc2LastSine = 0.8F;
        state.levelDetector = {0.5F, 5000};
        state.pitchDetector = {0.25F, -5000};
        const BroltState<2> before = state;

        Coefficients record = simpleRecord();
        record.outputGain = 2.0F;
        record.wetMix = 0.75F;
        record.osc1Gain = 3.0F;
        record.osc2Gain = 0.0F;
        Brolt<2, float>::process(state, nullptr, nullptr, record, frames);

        BroltState<2> expected = before;
        expected.outputGain = 2.0F;
        expected.wetMix = 0.75F;
        expected.osc1Gain = 3.0F;
        expected.osc2Gain = 0.0F;
        expected.osc1LastSine = 0.0F;
        expected.osc2LastSine = 0.0F;
        expected.levelDetector.direction = 800;
        expected.pitchDetector.direction = -800;
        expected.meterVersionSeen = 1;
        for (OutputMeter& meter : expected.outputMeters) {
            meter.envelopeCoefficient = 0.5F;
            meter.meanSquareCoefficient = 0.75F;
            meter.peakDecay = 0.5F;
        }
        EXPECT_EQ(wordsOf(state), wordsOf(expected)) << frames;
    }
}

TEST(Brolt, anEmptyBlockLeavesTheBuffersUntouched) {
    TestProcessor<1> processor;
    const float input = 0.5F;
    float output = 42.0F;
    const float* in = &input;
    float* out = &output;
    Brolt<1, float>::process(processor.state, &in, &out, simpleRecord(), 0);
    EXPECT_EQ(output, 42.0F);
    EXPECT_EQ(processor.state.firstBlock, 0);
}

TEST(Brolt, theLevelDetectorIgnoresAnOnsetAfterSilenceFor800Samples) {
    // 18 ms at 44.1 kHz: no tone in the first 800 samples, one from the 801st on.
    const Coefficients record = recordOf(defaultParameters());
    TestProcessor<1> processor;
    processor.hold(0.0F, 2000, record);
    const std::vector<float> output = processor.hold(1.0F, 900, record);
    for (std::size_t i = 0; i < 800; ++i)
        ASSERT_EQ(output[i], 0.0F) << i;
    EXPECT_NE(output[800], 0.0F);
}

TEST(Brolt, theHysteresisIsLimitedAtTheEndOfAHostsBlockAndNotWithinIt) {
    // 2000 falling samples and the onset in one block: 2001 rising samples pass before it counts.
    const Coefficients record = recordOf(defaultParameters());
    std::vector<float> input(2000, 0.0F);
    input.resize(4100, 1.0F);
    TestProcessor<1> processor;
    const std::vector<float> output = processor.run({input}, record)[0];
    for (std::size_t i = 0; i < 4000; ++i)
        ASSERT_EQ(output[i], 0.0F) << i;
    EXPECT_NE(output[4001], 0.0F);
}

TEST(Brolt, aStepSweepsTheFrequencyFromSustainToAttackLinearlyInT) {
    // The pitch detector covers a quarter of the way per sample: e = 1 - 0.75^n after n samples.
    Coefficients record = simpleRecord();
    record.osc1SustainT = 0.9F;
    record.osc1AttackT = 0.5F;
    TestProcessor<1> processor;
    double remaining = 1.0;
    for (int n = 1; n <= 40; ++n) {
        processor.hold(1.0F, 1, record);
        remaining *= 0.75;
        const double t = 0.9 + (1.0 - remaining) * (0.5 - 0.9);
        EXPECT_NEAR(static_cast<double>(processor.state.osc1LastSine), 0.5 * t * (3.0 - t * t),
                    1e-6)
            << n;
    }
}

TEST(Brolt, inputAboveFullScalePassesTheAttackFrequencyUntilHalfTheSampleRate) {
    const Coefficients record = recordOf(defaultParameters());
    TestProcessor<1> processor;
    processor.hold(1.0F, 4000, record);
    const float attackSine = processor.state.osc1LastSine;
    processor.hold(4.0F, 4000, record);
    EXPECT_LT(processor.state.osc1LastSine, attackSine);
    processor.hold(1e6F, 4000, record);
    EXPECT_EQ(processor.state.osc1LastSine, -1.0F);
    EXPECT_EQ(processor.state.osc2LastSine, -1.0F);
}

TEST(Brolt, stereoDetectsTheLouderChannelAndGivesBothTheSameTone) {
    const Coefficients record = recordOf(defaultParameters());
    const std::vector<float> loud = noise(1, 3000, 0.75F);
    std::vector<float> quiet = noise(2, 3000, 0.5F);
    for (std::size_t i = 0; i < loud.size(); ++i)
        quiet[i] = std::fabs(quiet[i]) < std::fabs(loud[i]) ? quiet[i] : -0.5F * loud[i];

    TestProcessor<1> mono;
    const std::vector<float> expected = mono.run({loud}, record)[0];
    for (const bool loudLeft : {true, false}) {
        TestProcessor<2> stereo;
        const auto output =
            loudLeft ? stereo.run({loud, quiet}, record) : stereo.run({quiet, loud}, record);
        EXPECT_EQ(output[0], expected);
        EXPECT_EQ(output[1], expected);
    }
}

TEST(Brolt, stereoTakesTheLouderChannelSampleBySample) {
    // Full rates: the level is the detection input itself.
    Coefficients record = simpleRecord();
    record.levelAttack = 1.0F;
    record.levelRelease = 1.0F;
    TestProcessor<2> processor;
    processor.run({std::vector<float>{0.25F}, std::vector<float>{-0.5F}}, record);
    EXPECT_EQ(processor.state.levelDetector.level, 0.5F);
    processor.run({std::vector<float>{-0.75F}, std::vector<float>{0.5F}}, record);
    EXPECT_EQ(processor.state.levelDetector.level, 0.75F);
}

TEST(Brolt, buffersInPlaceGiveTheSameOutput) {
    const Coefficients record = recordOf(defaultParameters());
    const std::array<std::vector<float>, 2> input{noise(3, 1500), noise(4, 1500)};
    TestProcessor<2> apart;
    const auto expected = apart.run(input, record);

    TestProcessor<2> inPlace;
    auto buffers = input;
    const std::array<const float*, 2> in{buffers[0].data(), buffers[1].data()};
    const std::array<float*, 2> out{buffers[0].data(), buffers[1].data()};
    Brolt<2, float>::process(inPlace.state, in.data(), out.data(), record, 1500);
    EXPECT_EQ(buffers, expected);
    EXPECT_EQ(wordsOf(inPlace.state), wordsOf(apart.state));
}

TEST(Brolt, aLongBlockNeedsNoMoreStackThanAShortOne) {
    // 8 million frames: as a stack array of its own each scratch buffer would be 32 MB.
    constexpr std::size_t frames = 8'000'000;
    TestProcessor<1> processor;
    std::vector<float> buffer(frames, 0.25F);
    const float* in = buffer.data();
    float* out = buffer.data();
    Brolt<1, float>::process(processor.state, &in, &out, recordOf(defaultParameters()),
                             static_cast<int32_t>(frames));
    EXPECT_GT(processor.state.outputMeters[0].peak, 0.0F);
    EXPECT_NE(buffer.back(), 0.25F);
}

TEST(Brolt, detectorsAndOscillatorsSurviveAwkwardInput) {
    using Limits = std::numeric_limits<float>;
    const Coefficients record = recordOf(defaultParameters());
    for (const float bad :
         {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(), 1e30F}) {
        TestProcessor<2> processor;
        processor.run({noise(5, 500), noise(6, 500)}, record);
        for (const std::size_t channel : {0U, 1U}) {
            std::array<std::vector<float>, 2> input{noise(7, 500), noise(8, 500)};
            input[channel][100] = bad;
            input[channel][499] = bad;
            processor.run(input, record);
        }
        for (int block = 0; block < 4; ++block)
            processor.run({noise(9, 2000, 0.5F), noise(10, 2000, 0.5F)}, record);
        EXPECT_TRUE(allFinite(processor.state)) << bad;
        EXPECT_NEAR(std::hypot(processor.state.oscillator1.x, processor.state.oscillator1.y), 1.0F,
                    1e-6F);

        Brolt<2, float>::resetMeters(processor.state);
        const auto output = processor.run({noise(11, 2000), noise(12, 2000)}, record);
        for (const float sample : output[0])
            ASSERT_TRUE(std::isfinite(sample)) << bad;
        for (const float value : processor.snapshot())
            EXPECT_TRUE(std::isfinite(value)) << bad;
    }
}
