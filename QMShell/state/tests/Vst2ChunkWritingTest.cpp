// SPDX-License-Identifier: GPL-3.0-or-later
// Chunks made for a VST 2 host, byte for byte, and the memory they lie in.
#include "QMShell/state/Vst2Chunk.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"
#include "QMShell/state/tests/support/FakeVst2Adapter.h"
#include "presets/record/tests/support/MessagePackEncoder.h"

#include <gtest/gtest.h>

namespace {

Bytes copyOf(std::span<const std::byte> bytes) {
    return {bytes.begin(), bytes.end()};
}

/// The fake instance's chunk with the fake adapter's parameters.
Vst2Fixture fakesChunk() {
    RecordFixture record;
    record.name = "fake";
    record.values = {{"afre", 123.5}, {"gain", -6.02}, {"mbyp", 0.0}};
    record.extension = packed::object({{"mBlendX", packed::real(0.25)}});
    record.uniqueId = 0x8000000000000077u;
    Vst2Fixture chunk;
    chunk.entries = {{"mbyp", 0.0}, {"afre", 0.25}, {"gain", double{0.1F}}};
    chunk.record = encodeRecord(record);
    return chunk;
}

} // namespace

TEST(Vst2ChunkWriting, aChunkOfAnInstanceIsTheEncodersBytes) {
    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter(&plugIn);
    Vst2Chunk chunk(adapter);
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(fakesChunk()));
}

TEST(Vst2ChunkWriting, aChunkWithoutAnInstanceIsTheEncodersBytes) {
    FakeVst2Adapter adapter(nullptr);
    Vst2Chunk chunk(adapter);
    Vst2Fixture expected;
    expected.entries = {
        {"\xFF\xFF\xFF\xFF", 0.0}, {"\xFF\xFF\xFF\xFF", 0.25}, {"\xFF\xFF\xFF\xFF", double{0.1F}}};
    expected.surplus = 16;
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(expected));
}

TEST(Vst2ChunkWriting, theSizeHasASurplusOfTwentyBytesWithAnInstanceAndSixteenWithout) {
    const FakeStatefulPlugIn plugIn;
    const std::size_t record = fakesChunk().record.size();
    EXPECT_EQ(vst2ChunkSize(3, &plugIn), 104u + 16 * 3 + record + 12);
    EXPECT_EQ(vst2ChunkSize(3, nullptr), 104u + 16 * 3 + 8);
    EXPECT_EQ(vst2ChunkSize(15, nullptr), 104u + 16 * 15 + 8);
    EXPECT_EQ(vst2ChunkSize(0, nullptr), 112u);
    EXPECT_EQ(vst2ChunkSize(-1, nullptr), 112u);
}

TEST(Vst2ChunkWriting, aPlugInWithoutParametersHasAChunkWithoutEntries) {
    FakeVst2Adapter adapter(nullptr);
    adapter.identifiers.clear();
    Vst2Chunk chunk(adapter);
    Vst2Fixture expected;
    expected.surplus = 16;
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(expected));
}

TEST(Vst2ChunkWriting, theFlagIsTheAdaptersAnswerAndTheBlockIsWrittenAllTheSame) {
    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter(&plugIn);
    Vst2Chunk chunk(adapter);
    const Bytes with = copyOf(chunk.get());
    adapter.blockFlag = 0;
    Bytes expected = with;
    expected[80] = std::byte{0};
    EXPECT_EQ(copyOf(chunk.get()), expected);
    adapter.blockFlag = 0x01020304;
    EXPECT_EQ(Bytes(chunk.get().begin() + 80, chunk.get().begin() + 84), bytesOf({4, 3, 2, 1}));
}

TEST(Vst2ChunkWriting, nothingOfTheMemoryBeforeIsInAChunk) {
    // The fake's memory is full of 0xA5, a byte that is nowhere in these chunks.
    FakeStatefulPlugIn plugIn;
    for (INoxPlugInState* instance :
         {static_cast<INoxPlugInState*>(&plugIn), static_cast<INoxPlugInState*>(nullptr)}) {
        FakeVst2Adapter adapter(instance);
        Vst2Chunk chunk(adapter);
        for (const std::byte byte : chunk.get())
            EXPECT_NE(byte, std::byte{0xA5});
    }
}

TEST(Vst2ChunkWriting, theBufferIsKeptUntilTheSizeChanges) {
    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter(&plugIn);
    {
        Vst2Chunk chunk(adapter);
        EXPECT_EQ(adapter.allocations, 0);
        const std::byte* const first = chunk.get().data();
        plugIn.state.values[fourCharCode("gain")] = 1.0;
        EXPECT_EQ(chunk.get().data(), first);
        EXPECT_EQ(adapter.allocations, 1);
        EXPECT_EQ(adapter.frees, 0);
        plugIn.state.name = "longer than before";
        EXPECT_EQ(chunk.get().size(), vst2ChunkSize(3, &plugIn));
        EXPECT_EQ(adapter.allocations, 2);
        EXPECT_EQ(adapter.frees, 1);
    }
    EXPECT_EQ(adapter.frees, 2);
}

TEST(Vst2ChunkWriting, aKeptBufferHoldsTheNewState) {
    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter(&plugIn);
    Vst2Chunk chunk(adapter);
    const Bytes before = copyOf(chunk.get());
    adapter.vst2Values[0] = 1.0F;
    Vst2Fixture expected = fakesChunk();
    expected.entries[0].second = 1.0;
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(expected));
    adapter.vst2Values[0] = 0.0F;
    EXPECT_EQ(copyOf(chunk.get()), before);
}

TEST(Vst2ChunkWriting, withoutMemoryThereIsNoChunk) {
    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter(&plugIn);
    Vst2Chunk chunk(adapter);
    adapter.outOfMemory = true;
    EXPECT_TRUE(chunk.get().empty());
    adapter.outOfMemory = false;
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(fakesChunk()));
    plugIn.state.name += "x";
    adapter.outOfMemory = true;
    EXPECT_TRUE(chunk.get().empty());
    EXPECT_EQ(adapter.frees, adapter.allocations);
}

namespace {

/// Forgets the record when it tells the size.
class ForgetfulAdapter : public FakeVst2Adapter {
public:
    using FakeVst2Adapter::FakeVst2Adapter;

    [[nodiscard]] std::size_t chunkSize() const override { return 100; }
};

} // namespace

TEST(Vst2ChunkWriting, aSizeThatIsTooSmallIsNotWrittenBeyond) {
    FakeStatefulPlugIn plugIn;
    ForgetfulAdapter adapter(&plugIn);
    Vst2Chunk chunk(adapter);
    Vst2Fixture expected = fakesChunk();
    expected.surplus = 0;
    EXPECT_EQ(copyOf(chunk.get()), encodeVst2(expected));
}
