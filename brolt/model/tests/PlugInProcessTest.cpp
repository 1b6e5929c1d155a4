// SPDX-License-Identifier: GPL-3.0-or-later
// The local processing entry and the life of the processing state.
#include "brolt/model/tests/PlugInTestKit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <xmmintrin.h>

namespace {

template <typename Channels>
class PlugInProcess : public ::testing::Test {
protected:
    static constexpr int channels = Channels::value;
    PlugInUnderTest<channels> test;
    QMBrolt_PlugIn& plugIn = test.plugIn;
};

TYPED_TEST_SUITE(PlugInProcess, BothLayouts, LayoutName);

} // namespace

TYPED_TEST(PlugInProcess, isTheProcessorBitForBit) {
    constexpr int N = TypeParam::value;
    std::mt19937 random(N);
    this->plugIn.createProcessingState();
    BroltState<N> expectedState;
    Brolt<N, float>::initialiseState(expectedState);

    const std::array<std::size_t, 10> sizes{64, 1, 7, 0, 256, 300, 4096, 2, 1023, 512};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        this->test.set("afre", 60.0 + 30.0 * static_cast<double>(i));
        this->test.set("gain", static_cast<double>(i) - 4.0);
        this->test.set("osc2", i % 2 == 0 ? 1.0 : 0.0);
        const Coefficients record = this->test.nextRecord();
        this->test.push(record);
        TestBlock<N> block(sizes[i], random);
        TestBlock<N> expected = block;
        (void)expected.inputBlock();
        (void)expected.outputBlock();
        Brolt<N, float>::process(expectedState, expected.inputs.data(), expected.outputs.data(),
                                 record, expected.frameCount);
        this->test.process(block);
        for (std::size_t c = 0; c < N; ++c)
            ASSERT_TRUE(sameBits(block.output[c], expected.output[c])) << i << " channel " << c;
        ASSERT_EQ(bytesOf(this->test.state()), bytesOf(expectedState)) << i;
        ASSERT_EQ(bytesOf(*this->plugIn.coefficientsInUse()), bytesOf(record)) << i;
    }
}

TYPED_TEST(PlugInProcess, mayWriteIntoItsInput) {
    constexpr int N = TypeParam::value;
    std::mt19937 random(7);
    PlugInUnderTest<N> apart;
    for (PlugInUnderTest<N>* each : {&apart, &this->test}) {
        each->plugIn.createProcessingState();
        each->push(each->nextRecord());
    }
    TestBlock<N> block(500, random);
    TestBlock<N> inPlace = block;
    apart.process(block);
    this->plugIn.process(inPlace.inputBlock(), inPlace.inputBlock());
    for (std::size_t c = 0; c < N; ++c)
        EXPECT_TRUE(sameBits(inPlace.input[c], block.output[c])) << c;
}

TYPED_TEST(PlugInProcess, withoutAStateLeavesTheOutputsUntouched) {
    TestBlock<TypeParam::value> block(64, 0.5F);
    this->test.push(this->test.nextRecord());
    this->test.process(block);
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_EQ(this->plugIn.coefficientsInUse(), nullptr);

    this->plugIn.createProcessingState();
    this->plugIn.destroyProcessingState();
    this->test.process(block);
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_EQ(this->plugIn.processingData(), nullptr);
}

TYPED_TEST(PlugInProcess, isSilentBeforeTheFirstRecord) {
    this->plugIn.createProcessingState();
    TestBlock<TypeParam::value> block(64, 0.5F);
    this->test.process(block);
    for (const auto& channel : block.output) {
        for (const float value : channel)
            EXPECT_EQ(value, 0.0F);
    }
    EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, -1);
}

TYPED_TEST(PlugInProcess, readsTheFrameCountAsASigned32BitNumber) {
    constexpr int N = TypeParam::value;
    this->plugIn.createProcessingState();
    TestBlock<N> block(64, 0.5F);
    NoxProcessBlock input = block.inputBlock();
    input.frameCount = 0x100000004; // 4 in the low half
    this->plugIn.process(input, block.outputBlock());
    for (const auto& channel : block.output) {
        EXPECT_EQ(std::count(channel.begin(), channel.end(), TestBlock<N>::untouched), 60);
        EXPECT_EQ(channel[3], 0.0F);
    }
    input.frameCount = 0xFFFFFFFF; // -1
    TestBlock<N> second(64, 0.5F);
    this->plugIn.process(input, second.outputBlock());
    EXPECT_TRUE(second.outputIsUntouched());
}

TYPED_TEST(PlugInProcess, usesOneRecordABlockAndOfFourTheFirstTheSecondAndTheLast) {
    this->plugIn.createProcessingState();
    for (const std::int32_t version : {11, 12, 13, 14}) {
        Coefficients record = this->test.nextRecord();
        record.meterVersion = version;
        this->test.push(record);
    }
    std::vector<std::int32_t> used;
    for (int i = 0; i < 5; ++i) {
        TestBlock<TypeParam::value> block(8);
        this->test.process(block);
        used.push_back(this->plugIn.coefficientsInUse()->meterVersion);
    }
    EXPECT_EQ(used, (std::vector<std::int32_t>{11, 12, 14, 14, 14}));
}

TYPED_TEST(PlugInProcess, discardingKeepsTheNewestRecord) {
    this->plugIn.discardPendingCoefficients(); // no queue yet
    this->plugIn.createProcessingState();
    for (const std::int32_t version : {11, 12, 13}) {
        Coefficients record = this->test.nextRecord();
        record.meterVersion = version;
        this->test.push(record);
    }
    this->plugIn.discardPendingCoefficients();
    for (int i = 0; i < 2; ++i) {
        TestBlock<TypeParam::value> block(8);
        this->test.process(block);
        EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, 13) << i;
    }
}

TYPED_TEST(PlugInProcess, recordsOfAnyOtherLengthDoNotReachTheQueue) {
    this->plugIn.createProcessingState();
    for (const std::uint64_t length : {0u, 4u, 64u, 68u, 71u, 73u, 76u, 144u}) {
        const Packet packet(Packet::coefficientKind, length);
        std::memset(packet.data, 0x3F, static_cast<std::size_t>(length));
        this->plugIn.pushCoefficients(packet);
    }
    TestBlock<TypeParam::value> block(8);
    this->test.process(block);
    EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, -1);
}

TYPED_TEST(PlugInProcess, aNewStateReplacesStateAndQueue) {
    constexpr int N = TypeParam::value;
    std::mt19937 random(3);
    this->plugIn.createProcessingState();
    this->test.push(this->test.nextRecord());
    TestBlock<N> block(300, random);
    this->test.process(block);
    BroltState<N> fresh;
    Brolt<N, float>::initialiseState(fresh);
    EXPECT_NE(bytesOf(this->test.state()), bytesOf(fresh));
    this->test.push(this->test.nextRecord()); // pending while the queue goes

    this->plugIn.createProcessingState();
    EXPECT_EQ(this->plugIn.coefficientsInUse(), nullptr);
    EXPECT_EQ(bytesOf(this->test.state()), bytesOf(fresh));
    this->test.process(block);
    EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, -1);
}

TYPED_TEST(PlugInProcess, aResetIsTheProcessorsAndKeepsTheRecord) {
    constexpr int N = TypeParam::value;
    std::mt19937 random(4);
    this->plugIn.resetProcessingState(); // no state yet
    EXPECT_EQ(this->plugIn.processingData(), nullptr);

    this->plugIn.createProcessingState();
    const Coefficients record = this->test.nextRecord();
    this->test.push(record);
    TestBlock<N> block(700, random);
    this->test.process(block);
    BroltState<N> expected = this->test.state();
    Brolt<N, float>::resetState(expected);
    EXPECT_NE(bytesOf(this->test.state()), bytesOf(expected));
    this->plugIn.resetProcessingState();
    EXPECT_EQ(bytesOf(this->test.state()), bytesOf(expected));
    this->test.process(block);
    EXPECT_EQ(this->plugIn.coefficientsInUse()->meterVersion, record.meterVersion);
}

TYPED_TEST(PlugInProcess, givesTheFloatingPointControlWordBack) {
    constexpr int N = TypeParam::value;
    constexpr unsigned int flushBits = 0x8040;
    constexpr unsigned int roundUp = 0x4000;
    std::mt19937 random(5);
    this->plugIn.createProcessingState();
    const Coefficients record = this->test.nextRecord();
    this->test.push(record);
    TestBlock<N> block(700, random);
    BroltState<N> state;
    Brolt<N, float>::initialiseState(state);
    const NoxHostManagedBlock managed = block.managed(&record, &state);
    const NoxProcessBlock input = block.inputBlock();
    const NoxProcessBlock output = block.outputBlock();

    const unsigned int before = _mm_getcsr();
    for (const unsigned int word : {before & ~flushBits, before | flushBits, before | roundUp}) {
        _mm_setcsr(word);
        this->plugIn.process(input, output);
        const unsigned int afterLocal = _mm_getcsr();
        _mm_setcsr(word);
        this->plugIn.processWithMeters(managed);
        const unsigned int afterManaged = _mm_getcsr();
        _mm_setcsr(before);
        EXPECT_EQ(afterLocal, word);
        EXPECT_EQ(afterManaged, word);
    }
}
