// SPDX-License-Identifier: GPL-3.0-or-later
// The processing entry for hosts that keep records and state in memory of their own.
#include "brolt/model/tests/PlugInTestKit.h"

#include <gtest/gtest.h>

namespace {

template <typename Channels>
class PlugInHostManaged : public ::testing::Test {
protected:
    static constexpr int channels = Channels::value;
    PlugInUnderTest<channels> test;
    QMBrolt_PlugIn& plugIn = test.plugIn;
    Coefficients record = test.nextRecord();
    BroltState<channels> state = fresh();
    std::mt19937 random{channels};

    static BroltState<channels> fresh() {
        BroltState<channels> made;
        Brolt<channels, float>::initialiseState(made);
        return made;
    }
};

TYPED_TEST_SUITE(PlugInHostManaged, BothLayouts, LayoutName);

} // namespace

TYPED_TEST(PlugInHostManaged, isTheProcessorBitForBit) {
    constexpr int N = TypeParam::value;
    BroltState<N> expectedState = this->fresh();
    for (const std::size_t frames : {64u, 0u, 1u, 777u}) {
        TestBlock<N> block(frames, this->random);
        TestBlock<N> expected = block;
        const NoxHostManagedBlock pointers = expected.managed(&this->record, &expectedState);
        Brolt<N, float>::process(expectedState, pointers.inputs, pointers.outputs, this->record,
                                 expected.frameCount);
        this->plugIn.processWithMeters(block.managed(&this->record, &this->state));
        for (std::size_t c = 0; c < N; ++c)
            ASSERT_TRUE(sameBits(block.output[c], expected.output[c])) << frames;
        ASSERT_EQ(bytesOf(this->state), bytesOf(expectedState)) << frames;
    }
}

TYPED_TEST(PlugInHostManaged, writesThePeaksThenAZeroAndNoMore) {
    constexpr int N = TypeParam::value;
    TestBlock<N> block(500, this->random);
    this->plugIn.processWithMeters(block.managed(&this->record, &this->state));
    for (std::size_t c = 0; c < N; ++c) {
        EXPECT_GT(block.peaks[c], 0.0F);
        EXPECT_EQ(block.peaks[c], this->state.outputMeters[c].peak);
    }
    EXPECT_EQ(block.peaks[N], 0.0F);
    for (std::size_t i = N + 1; i < block.peaks.size(); ++i)
        EXPECT_EQ(block.peaks[i], TestBlock<N>::untouched) << i;
}

TYPED_TEST(PlugInHostManaged, processesWithoutAMeterOutput) {
    constexpr int N = TypeParam::value;
    TestBlock<N> with(500, this->random);
    TestBlock<N> withoutPointer = with;
    withoutPointer.meters = false;
    TestBlock<N> withoutWord = with;
    BroltState<N> second = this->fresh();
    BroltState<N> third = this->fresh();

    this->plugIn.processWithMeters(with.managed(&this->record, &this->state));
    this->plugIn.processWithMeters(withoutPointer.managed(&this->record, &second));
    NoxHostManagedBlock managed = withoutWord.managed(&this->record, &third);
    managed.meterOutput = nullptr;
    this->plugIn.processWithMeters(managed);

    for (std::size_t c = 0; c < N; ++c) {
        EXPECT_TRUE(sameBits(withoutPointer.output[c], with.output[c]));
        EXPECT_TRUE(sameBits(withoutWord.output[c], with.output[c]));
    }
    EXPECT_EQ(bytesOf(second), bytesOf(this->state));
    EXPECT_EQ(bytesOf(third), bytesOf(this->state));
    EXPECT_EQ(withoutWord.peaks[0], TestBlock<N>::untouched);
}

TYPED_TEST(PlugInHostManaged, withoutAStateOrARecordDoesNothing) {
    constexpr int N = TypeParam::value;
    TestBlock<N> block(64, this->random);
    const auto before = bytesOf(this->state);
    this->plugIn.processWithMeters(block.managed(nullptr, &this->state));
    this->plugIn.processWithMeters(block.managed(&this->record, nullptr));
    this->plugIn.processWithMeters(block.managed(nullptr, nullptr));
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_EQ(block.peaks[0], TestBlock<N>::untouched);
    EXPECT_EQ(bytesOf(this->state), before);
}

TYPED_TEST(PlugInHostManaged, leavesTheInstancesOwnStateAndQueueAlone) {
    constexpr int N = TypeParam::value;
    this->plugIn.createProcessingState();
    this->test.push(this->record);
    const auto before = bytesOf(this->test.state());
    TestBlock<N> block(64, this->random);
    this->plugIn.processWithMeters(block.managed(&this->record, &this->state));
    EXPECT_EQ(bytesOf(this->test.state()), before);
    EXPECT_EQ(this->plugIn.coefficientsInUse(), nullptr);
    this->test.process(block);
    EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, this->record.meterVersion);
}
