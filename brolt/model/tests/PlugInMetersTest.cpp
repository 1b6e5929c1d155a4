// SPDX-License-Identifier: GPL-3.0-or-later
// The control messages and the way of a snapshot into the meter records.
#include "brolt/model/tests/PlugInTestKit.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

template <int N>
class PlugInMeters : public ::testing::Test {
protected:
    InProcessHost host;
    PlugInUnderTest<N> test;
    QMBrolt_PlugIn& plugIn = test.plugIn;

    ~PlugInMeters() override { plugIn.setProcessingHost(nullptr); }

    /// A state that has heard a loud block with all defaults.
    void play() {
        plugIn.createProcessingState();
        plugIn.setProcessingHost(&host);
        std::mt19937 random(11);
        TestBlock<N> block(4000, random);
        test.process(block);
    }

    static std::array<float, 6> valuesOf(const NoxMeterRecord* record) {
        std::array<float, 6> values{};
        if (record == nullptr)
            ADD_FAILURE() << "no such record";
        else
            std::copy_n(record->values, 6, values.begin());
        return values;
    }

    std::array<float, 6> values(std::int32_t record) {
        return valuesOf(plugIn.meterRecord(record));
    }
};

using MonoMeters = PlugInMeters<1>;
using StereoMeters = PlugInMeters<2>;
using Values = std::array<float, 6>;

void receive(INoxPlugIn& plugIn, const std::vector<float>& floats, std::uint64_t length) {
    const Packet packet(Packet::messageKind, length);
    std::memcpy(packet.data, floats.data(),
                std::min<std::size_t>(length, floats.size() * sizeof(float)));
    plugIn.receiveAnalysis(packet);
}

} // namespace

TEST_F(MonoMeters, aSnapshotHasSevenWordsAndThereAreTwoRecords) {
    EXPECT_EQ(plugIn.analysisWordCount(), 7u);
    EXPECT_EQ(plugIn.meterRecordCount(), 2);
    EXPECT_NE(plugIn.meterRecord(1), nullptr);
    EXPECT_EQ(plugIn.meterRecord(2), nullptr);
}

TEST_F(StereoMeters, aSnapshotHasTenWordsAndTheOscillatorRecordIsTheThird) {
    EXPECT_EQ(plugIn.analysisWordCount(), 10u);
    EXPECT_EQ(plugIn.meterRecordCount(), 3);
    EXPECT_EQ(plugIn.meterRecord(2)->index, 2);
    EXPECT_EQ(plugIn.meterRecord(3), nullptr);
}

TEST_F(MonoMeters, aSnapshotIsSortedIntoTheRecords) {
    receive(plugIn, {0.5F, 0.25F, 0.75F, 0.125F, 3.0F, 5.0F, 7.0F}, 28);
    EXPECT_EQ(values(0), (Values{49.0F, 0.0F, 5.0F, 0.0F, 9.0F, 0.0F}));
    EXPECT_EQ(values(1), (Values{0.5F, 0.75F, 0.25F, 0.125F, 0.0F, 0.0F}));
}

TEST_F(StereoMeters, aSnapshotIsSortedIntoTheRecords) {
    receive(plugIn, {0.5F, 0.25F, 0.75F, 0.125F, 3.0F, 5.0F, 7.0F, 2.0F, 6.0F, 4.0F}, 40);
    EXPECT_EQ(values(0), (Values{49.0F, 0.0F, 5.0F, 0.0F, 9.0F, 0.0F}));
    EXPECT_EQ(values(1), (Values{16.0F, 0.0F, 6.0F, 0.0F, 4.0F, 0.0F}));
    EXPECT_EQ(values(2), (Values{0.5F, 0.75F, 0.25F, 0.125F, 0.0F, 0.0F}));
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(plugIn.meterRecord(i)->index, i);
}

TEST_F(StereoMeters, aSnapshotThatIsTooShortIsNotTaken) {
    const std::vector<float> floats(10, 2.0F);
    for (const std::uint64_t length : {0u, 28u, 39u})
        receive(plugIn, floats, length);
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(values(i), Values{}) << i;
}

TEST_F(StereoMeters, anUpdateShowsTheRunningProcessor) {
    play();
    plugIn.updateMeters();
    std::array<float, 10> s{};
    Brolt<2, float>::copySnapshot(test.state(), s.data());
    EXPECT_GT(s[2], 0.0F);
    EXPECT_GT(s[6], 0.0F);
    EXPECT_EQ(values(0), (Values{s[6] * s[6], 0.0F, s[5], 0.0F, s[4] * s[4], 0.0F}));
    EXPECT_EQ(values(1), (Values{s[9] * s[9], 0.0F, s[8], 0.0F, s[7] * s[7], 0.0F}));
    EXPECT_EQ(values(2), (Values{s[0], s[2], s[1], s[3], 0.0F, 0.0F}));
}

TEST_F(MonoMeters, anUpdateShowsTheRunningProcessor) {
    play();
    plugIn.updateMeters();
    std::array<float, 7> s{};
    Brolt<1, float>::copySnapshot(test.state(), s.data());
    EXPECT_GT(s[6], 0.0F);
    EXPECT_EQ(values(0), (Values{s[6] * s[6], 0.0F, s[5], 0.0F, s[4] * s[4], 0.0F}));
    EXPECT_EQ(values(1), (Values{s[0], s[2], s[1], s[3], 0.0F, 0.0F}));
}

TEST_F(StereoMeters, aDisabledOscillatorHasNoLevelWhileTheOtherFollowsTheInput) {
    test.set("osc2", 0.0);
    play();
    plugIn.updateMeters();
    std::array<float, 10> s{};
    test.send(0x1000000, s.data());
    EXPECT_EQ(s[3], 0.0F);
    EXPECT_GT(s[2], 0.0F);
    EXPECT_EQ(values(2)[3], 0.0F);
    EXPECT_GT(values(2)[1], 0.0F);
}

TEST_F(StereoMeters, withoutAProcessingStateEverythingReadsZero) {
    plugIn.setProcessingHost(&host);
    plugIn.updateMeters();
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(values(i), Values{}) << i;
}

TEST_F(StereoMeters, readZeroAgainOnceTheStateIsGone) {
    play();
    plugIn.updateMeters();
    EXPECT_GT(values(0)[0], 0.0F);
    plugIn.destroyProcessingState();
    plugIn.updateMeters();
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(values(i), Values{}) << i;
}

TEST_F(StereoMeters, theAnalysisMessageWritesOneSnapshotAndNotAWordMore) {
    play();
    std::array<float, 12> words{};
    words.fill(-9.0F);
    test.send(0x1000000, words.data());
    std::array<float, 12> expected{};
    expected.fill(-9.0F);
    Brolt<2, float>::copySnapshot(test.state(), expected.data());
    EXPECT_EQ(bytesOf(words), bytesOf(expected));
}

TEST_F(MonoMeters, theAnalysisMessageWritesOneSnapshotAndNotAWordMore) {
    play();
    std::array<float, 9> words{};
    words.fill(-9.0F);
    test.send(0x1000000, words.data());
    std::array<float, 9> expected{};
    expected.fill(-9.0F);
    Brolt<1, float>::copySnapshot(test.state(), expected.data());
    EXPECT_EQ(bytesOf(words), bytesOf(expected));
}

TEST_F(StereoMeters, anAnalysisRequestBeforeThereIsAStateCopiesNothing) {
    std::array<float, 10> words{};
    words.fill(-9.0F);
    const auto before = words;
    test.send(0x1000000, words.data());
    EXPECT_EQ(words, before);
    plugIn.createProcessingState();
    plugIn.destroyProcessingState();
    test.send(0x1000000, words.data());
    EXPECT_EQ(words, before);
}

TEST_F(StereoMeters, aMeterResetZeroesTheValuesAndKeepsTheBallistics) {
    play();
    BroltState<2> expected = test.state();
    for (OutputMeter& meter : expected.outputMeters) {
        EXPECT_GT(meter.peak, 0.0F);
        meter.envelope = meter.meanSquare = meter.peak = 0.0F;
    }
    // The code is the whole message.
    const Packet packet(Packet::messageKind, sizeof(std::uint32_t));
    const std::uint32_t code = 0x1000001;
    std::memcpy(packet.data, &code, sizeof code);
    plugIn.handleMessage(packet);
    EXPECT_EQ(bytesOf(test.state()), bytesOf(expected));
}

TEST_F(MonoMeters, aMeterResetZeroesTheValuesAndKeepsTheBallistics) {
    play();
    BroltState<1> expected = test.state();
    OutputMeter& meter = expected.outputMeters[0];
    EXPECT_GT(meter.peak, 0.0F);
    meter.envelope = meter.meanSquare = meter.peak = 0.0F;
    test.send(0x1000001, nullptr);
    EXPECT_EQ(bytesOf(test.state()), bytesOf(expected));
}

TEST_F(StereoMeters, aMeterResetWithoutAStateIsNothing) {
    test.send(0x1000001, nullptr);
    EXPECT_EQ(plugIn.processingData(), nullptr);
}

TEST_F(StereoMeters, otherCodesAreIgnored) {
    play();
    const auto before = bytesOf(test.state());
    std::array<float, 10> words{};
    for (const std::uint32_t code : {0u, 1u, 0xFFFFFFu, 0x1000002u, 0x1000003u, 0xFFFFFFFFu})
        test.send(code, words.data());
    EXPECT_EQ(bytesOf(test.state()), before);
    EXPECT_EQ(words, (std::array<float, 10>{}));
}

TEST_F(StereoMeters, damagedMessagesAreIgnored) {
    play();
    const auto before = bytesOf(test.state());
    for (const std::uint64_t length : {0u, 1u, 3u}) {
        const Packet packet(Packet::messageKind, length);
        const std::uint32_t code = 0x1000001;
        std::memcpy(packet.data, &code, static_cast<std::size_t>(length));
        plugIn.handleMessage(packet);
    }
    test.send(0x1000000, nullptr);
    // A request without room for its pointer has none.
    const Packet packet(Packet::messageKind, 8);
    const std::uint32_t code = 0x1000000;
    std::memcpy(packet.data, &code, sizeof code);
    plugIn.handleMessage(packet);
    EXPECT_EQ(bytesOf(test.state()), before);
}
