// SPDX-License-Identifier: GPL-3.0-or-later
//
// The state image: its first contents, and what the reset operations touch and leave.

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

namespace {

constexpr uint32_t one = 0x3f800000;
constexpr uint32_t half = 0x3f000000;
constexpr uint32_t three = 0x40400000;
constexpr uint32_t minusOne = 0xffffffff; // as an integer

// Numerators over 2^24: 0.99999 -> 16777048 = ffff58, 0.9999 -> 16775538 = fff972,
// 0.999 -> 16760439 = ffbe77; 1 - 0.999 = 16777 / 2^24, exactly.
constexpr uint32_t envelopePole = 0x3f7fff58;
constexpr uint32_t otherPole = 0x3f7ff972;
constexpr uint32_t smoothingPole = 0x3f7fbe77;
constexpr uint32_t smoothingStep = 0x3a831200;

const std::vector<uint32_t> upToTheMeters{
    0,       0,   0,    0,     0,    0,          // gains, last sines
    0,       0,   0,    0,                       // detectors
    0,       one, half, three, half, three, one, // oscillators
    0,       one, half, three, half, three, one, //
    minusOne};
const std::vector<uint32_t> meter{0, 0, 0, envelopePole, otherPole, otherPole, 4};

std::vector<uint32_t> join(std::initializer_list<std::vector<uint32_t>> parts) {
    std::vector<uint32_t> whole;
    for (const std::vector<uint32_t>& part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

/// A state block in memory that was something else before.
template <int N>
BroltState<N> initialisedOverGarbage() {
    BroltState<N> state;
    std::memset(static_cast<void*>(&state), 0xa5, sizeof state);
    Brolt<N, float>::initialiseState(state);
    return state;
}

/// A state after a second of noise.
template <int N>
TestProcessor<N> busyProcessor() {
    TestProcessor<N> processor;
    TestRandom random(5);
    std::array<std::vector<float>, N> input;
    for (std::vector<float>& channel : input) {
        for (int i = 0; i < 4410; ++i)
            channel.push_back(random.sample());
    }
    processor.state.snapshotRequest = 3;
    processor.run(input, recordOf(defaultParameters()));
    return processor;
}

} // namespace

TEST(BroltState, initialisesTheMonoImageWordForWord) {
    const std::vector<uint32_t> expected = join({upToTheMeters,
                                                 meter,
                                                 {0, 0},
                                                 {0, 0, 0, 0, 0, 0, 0},
                                                 {1}, // the flag's byte and three unused ones
                                                 {smoothingPole, smoothingStep}});
    EXPECT_EQ(wordsOf(initialisedOverGarbage<1>()), expected);
    EXPECT_EQ(expected.size() * 4, 176U);
}

TEST(BroltState, initialisesTheStereoImageWordForWord) {
    const std::vector<uint32_t> expected = join({upToTheMeters,
                                                 meter,
                                                 meter,
                                                 {0, 0},
                                                 {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
                                                 {1},
                                                 {smoothingPole, smoothingStep}});
    EXPECT_EQ(wordsOf(initialisedOverGarbage<2>()), expected);
    EXPECT_EQ(expected.size() * 4, 216U);
}

TEST(BroltState, resetSilencesTheStagesAndKeepsGainsBallisticsAndCounters) {
    TestProcessor<2> processor = busyProcessor<2>();
    const BroltState<2> before = processor.state;
    ASSERT_NE(before.oscillator1.x, 0.0F);
    ASSERT_NE(before.outputMeters[1].peak, 0.0F);
    Brolt<2, float>::resetState(processor.state);

    BroltState<2> expected = before;
    expected.firstBlock = 1;
    expected.osc1LastSine = 0.0F;
    expected.osc2LastSine = 0.0F;
    expected.levelDetector = {};
    expected.pitchDetector = {};
    for (SineOscillator* oscillator : {&expected.oscillator1, &expected.oscillator2}) {
        oscillator->x = 0.0F;
        oscillator->y = 1.0F;
    }
    for (OutputMeter& each : expected.outputMeters) {
        each.envelope = 0.0F;
        each.meanSquare = 0.0F;
        each.peak = 0.0F;
    }
    EXPECT_EQ(wordsOf(processor.state), wordsOf(expected));
}

TEST(BroltState, meterResetTouchesTheThreeValuesOfEveryMeterAndNothingElse) {
    TestProcessor<2> processor = busyProcessor<2>();
    BroltState<2> expected = processor.state;
    for (OutputMeter& each : expected.outputMeters) {
        ASSERT_GT(each.envelope * each.meanSquare * each.peak, 0.0F);
        each.envelope = 0.0F;
        each.meanSquare = 0.0F;
        each.peak = 0.0F;
    }
    Brolt<2, float>::resetMeters(processor.state);
    EXPECT_EQ(wordsOf(processor.state), wordsOf(expected));
}

TEST(BroltState, afterAResetTheNextBlockStartsWithItsGainsAtTheirTargets) {
    TestProcessor<1> processor = busyProcessor<1>();
    Coefficients record = simpleRecord();
    record.outputGain = 0.25F;
    record.wetMix = 0.0F;
    Brolt<1, float>::resetState(processor.state);
    const std::vector<float> output = processor.hold(0.5F, 4, record);
    for (const float sample : output)
        EXPECT_FLOAT_EQ(sample, 0.125F);
}

TEST(BroltState, aResetProcessorRendersWhatAFreshOneDoes) {
    TestProcessor<1> used = busyProcessor<1>();
    Brolt<1, float>::resetState(used.state);
    TestProcessor<1> fresh;
    const Coefficients record = recordOf(defaultParameters());
    EXPECT_EQ(used.hold(0.75F, 500, record), fresh.hold(0.75F, 500, record));
}
