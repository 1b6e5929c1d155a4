// SPDX-License-Identifier: GPL-3.0-or-later
//
// The fast form of a block's frames against the plain one, from equal chains: every number of
// frames, gains moving and at rest, every sharing of buffers. And when it may be used at all.

#include "brolt/signal/LaneFrames.h"
#include "brolt/signal/PlainFrames.h"
#include "brolt/signal/ScopedFlushToZero.h"
#include "brolt/signal/tests/BroltTestKit.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

constexpr int32_t longest = 700;

BlockConstants constantsOf(const Coefficients& record) {
    const BroltState<1> state;
    return {{record.outputGain, record.wetMix, record.osc1Gain, record.osc2Gain},
            {state.smoothingPole, state.smoothingStep}};
}

/// Chains as in the middle of a session: everything has moved already.
template <int N>
BlockChains<N> chainsInUse(const Coefficients& record, bool gainsRest) {
    BlockChains<N> chains;
    chains.gains = constantsOf(record).targets;
    if (!gainsRest)
        chains.gains = {0.5F, 0.25F, 0.0F, 1.5F};
    chains.levelDetector = {0.4F, 3};
    chains.pitchDetector = {0.1F, -700};
    chains.oscillator1.x = 0.6F;
    chains.oscillator1.y = 0.8F;
    for (OutputMeter& meter : chains.outputMeters) {
        meter.envelope = 0.3F;
        meter.meanSquare = 0.2F;
        meter.peak = 0.7F;
    }
    return chains;
}

using Buffers = std::array<std::array<float, longest>, 4>;

void fill(Buffers& buffers, uint64_t start) {
    TestRandom random(start);
    for (auto& buffer : buffers)
        for (float& sample : buffer)
            sample = random.sample();
}

/// Which of four buffers each channel reads and writes.
struct Routing {
    std::array<std::size_t, 2> in;
    std::array<std::size_t, 2> out;
};

template <int N>
struct Run {
    Buffers buffers;
    BlockChains<N> chains;
    std::array<const float*, 2> in{};
    std::array<float*, 2> out{};

    Run(const Routing& routing, const BlockChains<N>& from)
        : chains(from) {
        fill(buffers, 7);
        for (std::size_t c = 0; c < 2; ++c) {
            in[c] = buffers[routing.in[c]].data();
            out[c] = buffers[routing.out[c]].data();
        }
    }
};

template <int N>
void expectEqualRuns(const Coefficients& record, bool gainsRest, const Routing& routing,
                     int32_t frames) {
    const ScopedFlushToZero flush;
    const BlockConstants constants = constantsOf(record);
    const BlockChains<N> start = chainsInUse<N>(record, gainsRest);
    Run<N> fast(routing, start);
    Run<N> plain(routing, start);

    ASSERT_TRUE(lanesApply(fast.chains, record, fast.in.data(), fast.out.data(), frames));
    const int32_t done =
        runFramesInLanes(fast.chains, fast.in.data(), fast.out.data(), record, constants, frames);
    ASSERT_EQ(done, frames / 4 * 4);
    runFramesPlainly(plain.chains, plain.in.data(), plain.out.data(), record, constants, 0, done);

    ASSERT_EQ(wordsOf(fast.buffers), wordsOf(plain.buffers)) << frames << " frames";
    ASSERT_EQ(wordsOf(fast.chains), wordsOf(plain.chains)) << frames << " frames";
}

template <int N>
void expectEqualRunsOfEveryLength(const Routing& routing) {
    const Coefficients record = recordOf(defaultParameters());
    for (const bool gainsRest : {true, false}) {
        for (int32_t frames = fewestLaneFrames; frames <= longest; ++frames)
            expectEqualRuns<N>(record, gainsRest, routing, frames);
    }
}

constexpr Routing apart{{0, 1}, {2, 3}};
constexpr Routing inPlace{{0, 1}, {0, 1}};
constexpr Routing crossed{{0, 1}, {1, 0}};
constexpr Routing sharedInput{{0, 0}, {0, 1}};

template <int N>
struct Case {
    BlockChains<N> chains = chainsInUse<N>(recordOf(defaultParameters()), true);
    Coefficients record = recordOf(defaultParameters());
    std::array<std::array<float, 64>, 2> input{};
    std::array<std::array<float, 64>, 2> output{};
    std::array<float*, 2> out{output[0].data(), output[1].data()};

    bool applies() {
        const ScopedFlushToZero flush;
        const std::array<const float*, 2> in{input[0].data(), input[1].data()};
        return lanesApply(chains, record, in.data(), out.data(), 64);
    }
};

constexpr float subnormal = std::numeric_limits<float>::denorm_min();
constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

/// Every way to leave the range in which the fast form is exact.
const std::vector<std::pair<std::string, std::function<void(Case<2>&)>>>& outOfRange() {
    using C = Case<2>&;
    // clang-format off
    static const std::vector<std::pair<std::string, std::function<void(Case<2>&)>>> all{
        {"negative zero level",      [](C c) { c.chains.levelDetector.level = -0.0F; }},
        {"negative level",           [](C c) { c.chains.levelDetector.level = -0.1F; }},
        {"subnormal level",          [](C c) { c.chains.pitchDetector.level = subnormal; }},
        {"infinite level",           [](C c) { c.chains.pitchDetector.level = infinite; }},
        {"NaN level",                [](C c) { c.chains.levelDetector.level = notANumber; }},
        {"huge level",               [](C c) { c.chains.levelDetector.level = 1e31F; }},
        {"NaN phase",                [](C c) { c.chains.oscillator1.x = notANumber; }},
        {"tiny phase",               [](C c) { c.chains.oscillator1.y = 1e-20F; }},
        {"subnormal phase",          [](C c) { c.chains.oscillator2.x = subnormal; }},
        {"phase off the circle",     [](C c) { c.chains.oscillator2.y = 1.5F; }},
        {"other normScale",          [](C c) { c.chains.oscillator1.normScale = 0.25F; }},
        {"other normTarget",         [](C c) { c.chains.oscillator1.normTarget = 2.0F; }},
        {"other polyScale",          [](C c) { c.chains.oscillator2.polyScale = 1.0F; }},
        {"other polyOffset",         [](C c) { c.chains.oscillator2.polyOffset = 2.0F; }},
        {"other limit",              [](C c) { c.chains.oscillator2.limit = 0.5F; }},
        {"rate above one",           [](C c) { c.record.levelAttack = 1.001F; }},
        {"rate of zero",             [](C c) { c.record.levelRelease = 0.0F; }},
        {"negative rate",            [](C c) { c.record.pitchAttack = -0.1F; }},
        {"NaN rate",                 [](C c) { c.record.pitchRelease = notANumber; }},
        {"step beyond the limit",    [](C c) { c.record.osc1AttackT = 1.001F; }},
        {"step of zero",             [](C c) { c.record.osc1SustainT = 0.0F; }},
        {"tiny step",                [](C c) { c.record.osc2AttackT = -1e-7F; }},
        {"NaN step",                 [](C c) { c.record.osc2SustainT = notANumber; }},
        {"different ballistics",     [](C c) { c.chains.outputMeters[1].peakDecay = 0.5F; }},
        {"one output for both",      [](C c) { c.out[1] = c.out[0]; }},
        {"infinite sample",          [](C c) { c.input[0][63] = -infinite; }},
        {"NaN sample",               [](C c) { c.input[1][0] = notANumber; }},
        {"negative NaN sample",      [](C c) { c.input[1][17] = -notANumber; }},
        {"huge sample",              [](C c) { c.input[0][5] = 1e31F; }},
    };
    // clang-format on
    return all;
}

} // namespace

TEST(LaneFrames, equalThePlainOnesWhateverTheirNumberInMono) {
    expectEqualRunsOfEveryLength<1>(apart);
}

TEST(LaneFrames, equalThePlainOnesWhateverTheirNumberInStereo) {
    expectEqualRunsOfEveryLength<2>(apart);
}

TEST(LaneFrames, equalThePlainOnesInPlace) {
    expectEqualRunsOfEveryLength<1>(inPlace);
    expectEqualRunsOfEveryLength<2>(inPlace);
}

TEST(LaneFrames, equalThePlainOnesWhenAnOutputIsTheOtherChannelsInput) {
    expectEqualRunsOfEveryLength<2>(crossed);
    expectEqualRunsOfEveryLength<2>(sharedInput);
}

TEST(LaneFrames, equalThePlainOnesAtTheEndsOfTheParameters) {
    TestRandom random(11);
    for (int i = 0; i < 2000; ++i) {
        const Coefficients record = recordOf(randomParameters(random));
        Case<2> asked;
        asked.record = record;
        if (!asked.applies())
            continue; // a setting outside the product's ranges
        expectEqualRuns<1>(record, i % 2 == 0, apart, 256);
        expectEqualRuns<2>(record, i % 2 == 0, apart, 256);
    }
}

TEST(LaneFrames, areUsedInAnOrdinarySession) {
    EXPECT_TRUE(Case<1>().applies());
    EXPECT_TRUE(Case<2>().applies());
}

TEST(LaneFrames, areUsedForWhateverTheParametersGive) {
    for (const float hertz : {1.0F, 1.7F, 60.0F, 440.0F}) {
        for (const float milliseconds : {1.0F, 1000.0F}) {
            BroltParameters parameters = defaultParameters();
            parameters.osc1AttackFrequency = hertz;
            parameters.osc2SustainFrequency = hertz;
            parameters.envelopeAttack = milliseconds;
            parameters.pitchRelease = milliseconds;
            Case<2> session;
            session.record = recordOf(parameters);
            EXPECT_TRUE(session.applies()) << hertz << " Hz, " << milliseconds << " ms";
        }
    }
}

TEST(LaneFrames, areUsedForSilenceAndSubnormalSamples) {
    Case<2> quiet;
    quiet.input[0].fill(subnormal);
    quiet.input[1].fill(-0.0F);
    quiet.chains.levelDetector.level = 0.0F;
    EXPECT_TRUE(quiet.applies());
}

TEST(LaneFrames, areNotUsedOutsideTheRangeInWhichTheyAreExact) {
    for (const auto& [name, change] : outOfRange()) {
        Case<2> changed;
        change(changed);
        EXPECT_FALSE(changed.applies()) << name;
    }
}
