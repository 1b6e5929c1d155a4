// SPDX-License-Identifier: GPL-3.0-or-later
// Chunks handed back by a VST 2 host, of both byte orders.
#include "QMShell/state/Vst2Chunk.h"
#include "QMShell/state/Vst2ChunkDecoder.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"
#include "QMShell/state/tests/support/FakeVst2Adapter.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Values = std::vector<std::pair<std::int32_t, double>>;

class Vst2ChunkReadingTest : public ::testing::Test {
protected:
    [[nodiscard]] std::string state() const { return describeRecord(plugIn.state); }

    void expectIgnored(const Bytes& bytes) {
        const std::string before = state();
        EXPECT_EQ(chunk.set(bytes), Vst2ChunkReading::ignored);
        EXPECT_EQ(state(), before);
        EXPECT_TRUE(plugIn.calls.empty());
        EXPECT_TRUE(adapter.set.empty());
        EXPECT_TRUE(adapter.restored.empty());
        EXPECT_EQ(adapter.refreshes, 0);
    }

    FakeStatefulPlugIn plugIn;
    FakeVst2Adapter adapter{&plugIn};
    Vst2Chunk chunk{adapter};
};

Vst2Fixture exampleChunk() {
    Vst2Fixture fixture;
    fixture.entries = {{"gain", 0.5}, {"mbyp", 1.0}};
    fixture.record = encodeRecord(exampleRecord());
    return fixture;
}

std::string example() {
    return describeRecord(readRecordPlainly(encodeRecord(exampleRecord())));
}

} // namespace

TEST_F(Vst2ChunkReadingTest, withARecordBlockTheEntriesAreIgnored) {
    EXPECT_EQ(chunk.set(encodeVst2(exampleChunk())), Vst2ChunkReading::recordApplied);
    EXPECT_EQ(state(), example());
    EXPECT_EQ(plugIn.calls, (std::vector<std::string>{"adapt", "apply"}));
    EXPECT_TRUE(adapter.set.empty());
    EXPECT_TRUE(adapter.restored.empty());
    EXPECT_EQ(adapter.refreshes, 1);
}

TEST_F(Vst2ChunkReadingTest, withoutARecordBlockEachParameterIsRestored) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    const std::string before = state();
    EXPECT_EQ(chunk.set(encodeVst2(fixture)), Vst2ChunkReading::entriesApplied);
    EXPECT_EQ(adapter.set, (Values{{2, 50.0}, {0, 100.0}})); // the fake's plain values
    EXPECT_EQ(adapter.restored,
              (std::vector<FourCharCode>{fourCharCode("gain"), fourCharCode("mbyp")}));
    EXPECT_EQ(adapter.refreshes, 1);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(plugIn.calls.empty());
}

TEST_F(Vst2ChunkReadingTest, anyFlagButZeroIsARecordBlock) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0x80000000;
    EXPECT_EQ(chunk.set(encodeVst2(fixture)), Vst2ChunkReading::recordApplied);
}

TEST_F(Vst2ChunkReadingTest, anotherProductsRecordIsAdaptedAndApplied) {
    RecordFixture other = exampleRecord();
    other.productCode = "BLTO";
    Vst2Fixture fixture = exampleChunk();
    fixture.record = encodeRecord(other);
    EXPECT_EQ(chunk.set(encodeVst2(fixture)), Vst2ChunkReading::recordApplied);
    EXPECT_EQ(state(), example());
}

TEST_F(Vst2ChunkReadingTest, aRecordThatCannotBeReadLeavesTheEntries) {
    std::vector<Vst2Fixture> fixtures(5, exampleChunk());
    fixtures[0].record = Bytes(60);
    fixtures[1].record.clear();
    fixtures[2].blockTag = "qmpt";
    fixtures[3].claimedRecordLength = 0xFFFFFFFF;
    fixtures[4].claimedRecordLength = static_cast<std::uint32_t>(fixtures[4].record.size()) + 21;
    for (const Vst2Fixture& fixture : fixtures) {
        FakeVst2Adapter fresh(&plugIn);
        const std::string before = state();
        EXPECT_EQ(Vst2Chunk(fresh).set(encodeVst2(fixture)), Vst2ChunkReading::entriesApplied);
        EXPECT_EQ(fresh.set, (Values{{2, 50.0}, {0, 100.0}}));
        EXPECT_EQ(fresh.refreshes, 1);
        EXPECT_EQ(state(), before);
    }
}

TEST_F(Vst2ChunkReadingTest, aFlagWithoutRoomForABlockLeavesTheEntries) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    fixture.surplus = 0;
    Bytes bytes = encodeVst2(fixture);
    bytes[80] = std::byte{1};
    for (std::size_t more = 0; more < 8; ++more) {
        FakeVst2Adapter fresh(&plugIn);
        EXPECT_EQ(Vst2Chunk(fresh).set(bytes), Vst2ChunkReading::entriesApplied);
        EXPECT_EQ(fresh.set.size(), 2u);
        bytes.push_back(std::byte{0});
    }
}

TEST_F(Vst2ChunkReadingTest, theSurplusIsNotNeeded) {
    Vst2Fixture fixture = exampleChunk();
    fixture.surplus = 0;
    EXPECT_EQ(chunk.set(encodeVst2(fixture)), Vst2ChunkReading::recordApplied);
}

TEST_F(Vst2ChunkReadingTest, anUnknownIdentifierSetsNothingAndIsTold) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    fixture.entries = {{"xxxx", 0.5}, {"gain", 0.25}, {"\xFF\xFF\xFF\xFF", 1.0}};
    EXPECT_EQ(chunk.set(encodeVst2(fixture)), Vst2ChunkReading::entriesApplied);
    EXPECT_EQ(adapter.set, (Values{{2, 25.0}}));
    EXPECT_EQ(adapter.restored.size(), 3u);
}

TEST_F(Vst2ChunkReadingTest, aRepeatedIdentifierIsSetEachTime) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    fixture.entries = {{"gain", 0.5}, {"gain", 0.25}};
    chunk.set(encodeVst2(fixture));
    EXPECT_EQ(adapter.set, (Values{{2, 50.0}, {2, 25.0}}));
}

TEST_F(Vst2ChunkReadingTest, anUnknownMarkerIsIgnored) {
    for (const std::uint32_t marker : {0u, 0x656E6468u, 0x6E656964u, 0xFFFFFFFFu}) {
        Vst2Fixture fixture = exampleChunk();
        fixture.marker = marker;
        expectIgnored(encodeVst2(fixture));
    }
    expectIgnored({});
    expectIgnored(Bytes(1000));
}

TEST_F(Vst2ChunkReadingTest, aCountOfEntriesBeyondTheChunkIsIgnoredWhole) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    fixture.surplus = 15; // one byte short of one more entry
    for (const std::uint32_t count : {3u, 0x0FFFFFFFu, 0x10000000u, 0x10000002u, 0xFFFFFFFFu}) {
        fixture.claimedEntryCount = count;
        expectIgnored(encodeVst2(fixture));
        expectIgnored(encodeVst2BigEndian(fixture));
    }
}

TEST_F(Vst2ChunkReadingTest, whatApplyingThrowsComesThroughAndNothingHasChanged) {
    RecordFixture wrongType = exampleRecord();
    wrongType.extension = packed::object({{"mBlendX", packed::text("left")}});
    Vst2Fixture fixture = exampleChunk();
    fixture.record = encodeRecord(wrongType);
    const std::string before = state();
    const Bytes bytes = encodeVst2(fixture);
    EXPECT_THROW(chunk.set(bytes), nlohmann::json::exception);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(adapter.set.empty());
}

TEST_F(Vst2ChunkReadingTest, withoutAnInstanceNoRecordIsAppliedAndNobodyFails) {
    adapter.instance = nullptr;
    EXPECT_EQ(chunk.set(encodeVst2(exampleChunk())), Vst2ChunkReading::entriesApplied);
    EXPECT_EQ(adapter.refreshes, 1);
}

TEST_F(Vst2ChunkReadingTest, theOtherByteOrdersRecordIsApplied) {
    EXPECT_EQ(chunk.set(encodeVst2BigEndian(exampleChunk())), Vst2ChunkReading::recordApplied);
    EXPECT_EQ(state(), example());
}

TEST_F(Vst2ChunkReadingTest, theOtherByteOrdersValuesAreTheNumbersOfTheirBits) {
    Vst2Fixture fixture = exampleChunk();
    fixture.recordBlockFlag = 0;
    fixture.entries = {{"gain", 0.5}, {"mbyp", 0.0}, {"afre", -1.0}};
    EXPECT_EQ(chunk.set(encodeVst2BigEndian(fixture)), Vst2ChunkReading::entriesApplied);
    // 0.5 is 0x3FE0000000000000 = 2^62 - 2^53, -1.0 is 0xBFF0000000000000 = 2^63 + 2^62 - 2^52,
    // unsigned; the fake makes a hundred of one.
    EXPECT_EQ(adapter.set, (Values{{2, 4602678819172646912.0 * 100.0},
                                   {0, 0.0},
                                   {1, 13830554455654793216.0 * 100.0}}));
    EXPECT_EQ(adapter.restored,
              (std::vector<FourCharCode>{fourCharCode("gain"), fourCharCode("mbyp"),
                                         fourCharCode("afre")}));
}

TEST_F(Vst2ChunkReadingTest, theOtherByteOrdersHeaderIsRestored) {
    Vst2Fixture fixture = exampleChunk();
    for (std::size_t i = 0; i < 64; ++i)
        fixture.reserved[i] = static_cast<std::byte>(i);
    fixture.version = 0x01020304;
    const Bytes bytes = encodeVst2BigEndian(fixture);
    const auto content = decodeVst2Chunk(bytes);
    ASSERT_TRUE(content);
    EXPECT_EQ(Bytes(content->header.reserved.begin(), content->header.reserved.end()),
              fixture.reserved);
    EXPECT_EQ(content->header.marker, 0x656E6469u);
    EXPECT_EQ(content->header.version, 0x01020304u);
    EXPECT_EQ(content->header.productWord, fourCharCode("BRLT"));
    EXPECT_EQ(content->header.uniqueId, fourCharCode("qmBR"));
    EXPECT_EQ(content->header.recordBlockFlag, 1u);
    EXPECT_EQ(content->header.entryCount, 2u);
}

TEST_F(Vst2ChunkReadingTest, stateGoesThroughAChunkAndBack) {
    const std::string before = state();
    const auto bytes = chunk.get();
    const Bytes saved(bytes.begin(), bytes.end());
    plugIn.state.values.clear();
    plugIn.state.extension = nullptr;
    EXPECT_EQ(chunk.set(saved), Vst2ChunkReading::recordApplied);
    EXPECT_EQ(state(), before);
}

TEST_F(Vst2ChunkReadingTest, theHeldChunkMayBeSetItself) {
    const std::string before = state();
    EXPECT_EQ(chunk.set(chunk.get()), Vst2ChunkReading::recordApplied);
    EXPECT_EQ(state(), before);
}
