// SPDX-License-Identifier: GPL-3.0-or-later
//
// The analysis snapshot: what is in it, and how a reader of the state image asks for one.

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

template <int N>
std::array<float, 4 + 3 * N> expectedSnapshot(const BroltState<N>& state, bool osc1, bool osc2) {
    std::array<float, 4 + 3 * N> values{state.osc1LastSine, state.osc2LastSine,
                                        osc1 ? state.levelDetector.level : 0.0F,
                                        osc2 ? state.levelDetector.level : 0.0F};
    for (std::size_t c = 0; c < N; ++c) {
        values[4 + 3 * c] = state.outputMeters[c].envelope;
        values[5 + 3 * c] = state.outputMeters[c].meanSquare;
        values[6 + 3 * c] = state.outputMeters[c].peak;
    }
    return values;
}

} // namespace

TEST(BroltSnapshot, hasSevenFloatsInMonoAndTenInStereo) {
    EXPECT_EQ(BroltState<1>::snapshotLength, 7);
    EXPECT_EQ(BroltState<2>::snapshotLength, 10);
}

TEST(BroltSnapshot, carriesSinesLevelsAndTheMetersOfEveryChannel) {
    TestProcessor<2> processor;
    const std::vector<float> left(300, 0.5F);
    const std::vector<float> right(300, -0.25F);
    processor.run({left, right}, recordOf(defaultParameters()));
    ASSERT_GT(processor.state.levelDetector.level, 0.0F);
    ASSERT_NE(processor.state.osc1LastSine, processor.state.osc2LastSine);
    EXPECT_EQ(processor.snapshot(), expectedSnapshot(processor.state, true, true));
}

TEST(BroltSnapshot, copiesTheLiveStateAndNotTheStoredSnapshot) {
    TestProcessor<1> processor;
    processor.state.snapshotRequest = 1;
    processor.hold(0.5F, 100, recordOf(defaultParameters()));
    const std::array<float, 7> stored = processor.state.analysisSnapshot;
    processor.hold(0.5F, 100, recordOf(defaultParameters()));
    EXPECT_EQ(processor.state.analysisSnapshot, stored);
    EXPECT_NE(processor.snapshot(), stored);
}

TEST(BroltSnapshot, isServedAtTheEndOfTheNextBlockWhenTheCountersDiffer) {
    constexpr int32_t most = std::numeric_limits<int32_t>::max();
    TestProcessor<1> processor;
    for (const int32_t request : {1, 2, -5, most, -most - 1, 0}) {
        processor.state.snapshotRequest = request;
        processor.hold(0.5F, 100, recordOf(defaultParameters()));
        EXPECT_EQ(processor.state.snapshotServed, request);
        EXPECT_EQ(processor.state.snapshotRequest, request);
        EXPECT_EQ(processor.state.analysisSnapshot, processor.snapshot());
        EXPECT_GT(processor.state.analysisSnapshot[6], 0.0F);
    }
}

TEST(BroltSnapshot, isServedByAnEmptyBlockToo) {
    TestProcessor<1> processor;
    processor.hold(0.5F, 100, recordOf(defaultParameters()));
    processor.state.snapshotRequest = 1;
    processor.hold(0.0F, 0, recordOf(defaultParameters()));
    EXPECT_EQ(processor.state.snapshotServed, 1);
    EXPECT_EQ(processor.state.analysisSnapshot[0], 0.0F);
    EXPECT_GT(processor.state.analysisSnapshot[6], 0.0F);
}

TEST(BroltSnapshot, bothOscillatorsDisabledGiveTwoZeroLevelsWhileTheDetectorRuns) {
    BroltParameters parameters = defaultParameters();
    parameters.osc1Enable = false;
    parameters.osc2Enable = false;
    TestProcessor<1> processor;
    processor.state.snapshotRequest = 1;
    processor.hold(0.5F, 1000, recordOf(parameters));
    EXPECT_NEAR(processor.state.levelDetector.level, 0.5F, 1e-3F);
    EXPECT_EQ(processor.state.analysisSnapshot[2], 0.0F);
    EXPECT_EQ(processor.state.analysisSnapshot[3], 0.0F);
    EXPECT_EQ(processor.snapshot(), expectedSnapshot(processor.state, false, false));
}

TEST(BroltSnapshot, anOscillatorDisabledAloneHidesItsOwnLevelOnly) {
    BroltParameters parameters = defaultParameters();
    parameters.osc2Enable = false;
    TestProcessor<2> processor;
    processor.hold(0.5F, 1000, recordOf(parameters));
    EXPECT_EQ(processor.snapshot(), expectedSnapshot(processor.state, true, false));
}

TEST(BroltSnapshot, aGainOnItsWayToZeroStillShowsTheLevel) {
    BroltParameters parameters = defaultParameters();
    TestProcessor<1> processor;
    processor.hold(0.5F, 1000, recordOf(parameters, 2));
    parameters.osc1Enable = false;
    processor.hold(0.5F, 1000, recordOf(parameters, 3));
    EXPECT_GT(processor.snapshot()[2], 0.0F);
    for (int block = 0; block < 100; ++block)
        processor.hold(0.5F, 1000, recordOf(parameters, 3));
    EXPECT_EQ(processor.snapshot()[2], 0.0F);
    EXPECT_GT(processor.snapshot()[3], 0.0F);
}
