// SPDX-License-Identifier: GPL-3.0-or-later
// The processing state as a host sees it: size, offsets, initialisation in the host's own memory,
// the snapshot request, and reading it back.
#include "brolt/model/tests/PlugInTestKit.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

namespace {

struct StateBlockRow {
    std::size_t size;
    std::int32_t snapshot;
    std::int32_t request;
    std::int32_t served;
};

constexpr StateBlockRow monoBlock{176, 136, 128, 132};
constexpr StateBlockRow stereoBlock{216, 164, 156, 160};

/// Whether a buffer of the given size, starting at an odd address, becomes a fresh state block.
template <int N>
bool isInitialised(QMBrolt_PlugIn& plugIn, std::size_t size) {
    constexpr std::size_t length = sizeof(BroltState<N>);
    constexpr unsigned char guard = 0xA5;
    std::vector<unsigned char> memory(length + 16, guard);
    EXPECT_EQ(plugIn.initialiseStateBuffer(memory.data() + 1, size), 0);
    BroltState<N> fresh;
    Brolt<N, float>::initialiseState(fresh);
    const bool written = std::memcmp(memory.data() + 1, &fresh, length) == 0;
    // Nothing beside the block is touched, and nothing at all when it was refused.
    for (std::size_t i = 0; i < memory.size(); ++i) {
        const bool inside = written && i >= 1 && i < 1 + length;
        if (!inside) {
            EXPECT_EQ(memory[i], guard) << i;
        }
    }
    return written;
}

template <int N>
void expectBlock(const StateBlockRow& row) {
    PlugInUnderTest<N> test;
    QMBrolt_PlugIn& plugIn = test.plugIn;
    EXPECT_EQ(plugIn.processingDataSize(), row.size);
    EXPECT_EQ(plugIn.analysisOffset(0), row.snapshot);
    for (const std::int32_t index : {-1, 1, 2, 1000})
        EXPECT_EQ(plugIn.analysisOffset(index), -1) << index;
    EXPECT_EQ(plugIn.requestCounterOffset(), row.request);
    EXPECT_EQ(plugIn.processingData(), nullptr);
    plugIn.createProcessingState();
    EXPECT_NE(plugIn.processingData(), nullptr);

    EXPECT_TRUE(isInitialised<N>(plugIn, row.size));
    EXPECT_TRUE(isInitialised<N>(plugIn, row.size + 8));
    EXPECT_FALSE(isInitialised<N>(plugIn, row.size - 1));
    EXPECT_FALSE(isInitialised<N>(plugIn, 0));
    EXPECT_EQ(plugIn.initialiseStateBuffer(nullptr, 1000), 0);
}

/// Raises the request counter in a block of the host's own, runs one block on it and compares the
/// snapshot found at the offsets.
template <int N>
void expectServedRequest(const StateBlockRow& row) {
    PlugInUnderTest<N> test;
    alignas(8) std::array<unsigned char, 256> memory{};
    test.plugIn.initialiseStateBuffer(memory.data(), memory.size());
    const Coefficients record = test.nextRecord();
    std::mt19937 random(N);
    TestBlock<N> block(1000, random);
    const NoxHostManagedBlock managed = block.managed(&record, memory.data());
    const auto wordAt = [&](std::int32_t offset) {
        std::int32_t word = 0;
        std::memcpy(&word, memory.data() + offset, sizeof word);
        return word;
    };
    std::array<float, BroltState<N>::snapshotLength> kept{};
    const auto keptSnapshot = [&] {
        std::memcpy(kept.data(), memory.data() + test.plugIn.analysisOffset(0), sizeof kept);
        return kept;
    };

    test.plugIn.processWithMeters(managed);
    EXPECT_EQ(keptSnapshot(), (std::array<float, BroltState<N>::snapshotLength>{}));
    const std::int32_t request = -5;
    std::memcpy(memory.data() + test.plugIn.requestCounterOffset(), &request, sizeof request);
    test.plugIn.processWithMeters(managed);
    EXPECT_EQ(wordAt(row.request), -5);
    EXPECT_EQ(wordAt(row.served), -5);
    std::array<float, BroltState<N>::snapshotLength> live{};
    Brolt<N, float>::copySnapshot(*reinterpret_cast<const BroltState<N>*>(memory.data()),
                                  live.data());
    EXPECT_EQ(keptSnapshot(), live);
    EXPECT_GT(live[2], 0.0F);
    test.plugIn.processWithMeters(managed); // served already: the kept one stays
    EXPECT_EQ(keptSnapshot(), live);
}

} // namespace

TEST(PlugInStateBlock, hasItsSizeAndOffsetsInMono) {
    expectBlock<1>(monoBlock);
}

TEST(PlugInStateBlock, hasItsSizeAndOffsetsInStereo) {
    expectBlock<2>(stereoBlock);
}

TEST(PlugInStateBlock, inTheHostsMemoryServesSnapshotRequestsInMono) {
    expectServedRequest<1>(monoBlock);
}

TEST(PlugInStateBlock, inTheHostsMemoryServesSnapshotRequestsInStereo) {
    expectServedRequest<2>(stereoBlock);
}

namespace {

/// Notes where a dump has its buffer, and what was in it.
class DumpingHost : public InProcessHost {
public:
    NoxResult readPlugInData(INoxPlugIn& plugIn, std::uint64_t remoteID, std::size_t offset,
                             std::size_t length, void* destination) override {
        EXPECT_EQ(remoteID, 31u);
        EXPECT_EQ(offset, 0u);
        bytesAsked = length;
        buffer = destination;
        const std::vector<unsigned char> zeroes(length);
        EXPECT_EQ(std::memcmp(destination, zeroes.data(), length), 0);
        if (refusal != 0)
            return refusal;
        return InProcessHost::readPlugInData(plugIn, remoteID, offset, length, destination);
    }

    NoxResult refusal = 0;
    std::size_t bytesAsked = 0;
    const void* buffer = nullptr;
};

} // namespace

TEST(PlugInStateBlock, aDumpReadsItBackThroughTheHostAndLogsTheBuffer) {
    PlugInUnderTest<2> test;
    DumpingHost host;
    test.plugIn.createProcessingState();
    test.plugIn.setRemoteInstanceID(31);
    test.plugIn.setProcessingHost(&host);
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_EQ(test.plugIn.dumpProcessingState(), 0);
    EXPECT_EQ(host.bytesAsked, 216u);
    EXPECT_EQ(capture.messages(), printed("buffer: %p", host.buffer));
    test.plugIn.setProcessingHost(nullptr);
}

TEST(PlugInStateBlock, aDumpThatFailsAnswersTheHostsResultAndLogsNothing) {
    PlugInUnderTest<1> test;
    DumpingHost host;
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_EQ(test.plugIn.dumpProcessingState(), 6); // no host
    test.plugIn.setRemoteInstanceID(31);
    test.plugIn.setProcessingHost(&host);
    EXPECT_EQ(test.plugIn.dumpProcessingState(), 9); // no state
    EXPECT_EQ(host.bytesAsked, 176u);
    host.refusal = -2000;
    EXPECT_EQ(test.plugIn.dumpProcessingState(), -2000);
    EXPECT_EQ(capture.messages(), "");
    test.plugIn.setProcessingHost(nullptr);
}
