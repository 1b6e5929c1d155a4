// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2BankImport.h"

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using Entries = std::vector<std::pair<FourCharCode, double>>;

class NotingSink : public IStateEntrySink {
public:
    Entries entries;

    void restoreParameter(FourCharCode identifier, double storedValue) override {
        entries.emplace_back(identifier, storedValue);
    }
};

Vst2Fixture exampleChunk() {
    Vst2Fixture chunk;
    chunk.entries = {{"gain", 0.5}, {"afre", 123.5}, {"gain", 0.25}};
    chunk.record = encodeRecord(exampleRecord());
    return chunk;
}

BankFixture exampleBank() {
    BankFixture bank;
    bank.chunk = encodeVst2(exampleChunk());
    return bank;
}

const Entries exampleEntries = {
    {fourCharCode("gain"), 0.5}, {fourCharCode("afre"), 123.5}, {fourCharCode("gain"), 0.25}};

/// Imports from a stream that stands behind three bytes of somebody else's.
class Vst2BankImportTest : public ::testing::Test {
protected:
    bool import(const Bytes& bank, std::optional<FourCharCode> expected = std::nullopt) {
        const Bytes all = ByteBuilder().text("xyz").append(bank).bytes();
        StateMemoryStream stream(all);
        EXPECT_TRUE(stream.seek(3));
        const bool imported = importVst2Bank(stream, {sink, expected});
        EXPECT_EQ(stream.tell(), 3);
        EXPECT_TRUE(imported || sink.entries.empty());
        return imported;
    }

    NotingSink sink;
};

} // namespace

TEST_F(Vst2BankImportTest, theEntriesOfTheChunkAreHandedOverInOrder) {
    EXPECT_TRUE(import(encodeBank(exampleBank())));
    EXPECT_EQ(sink.entries, exampleEntries);
}

TEST_F(Vst2BankImportTest, aBankInAWrapperIsImported) {
    BankFixture bank = exampleBank();
    bank.wrapperBypass = 1;
    EXPECT_TRUE(import(encodeBank(bank)));
    EXPECT_EQ(sink.entries, exampleEntries);
}

TEST_F(Vst2BankImportTest, theRecordBlockDoesNotMatter) {
    Vst2Fixture chunk = exampleChunk();
    chunk.record = bytesOf({1, 2, 3});
    BankFixture bank;
    bank.chunk = encodeVst2(chunk);
    EXPECT_TRUE(import(encodeBank(bank)));
    EXPECT_EQ(sink.entries, exampleEntries);
}

TEST_F(Vst2BankImportTest, aChunkWithoutEntriesIsImportedToo) {
    BankFixture bank;
    bank.chunk = encodeVst2({});
    EXPECT_TRUE(import(encodeBank(bank)));
    EXPECT_TRUE(sink.entries.empty());
}

TEST_F(Vst2BankImportTest, theOtherByteOrdersValuesAreTheNumbersOfTheirBits) {
    Vst2Fixture chunk = exampleChunk();
    chunk.entries = {{"gain", 0.5}};
    BankFixture bank;
    bank.chunk = encodeVst2BigEndian(chunk);
    EXPECT_TRUE(import(encodeBank(bank)));
    EXPECT_EQ(sink.entries, (Entries{{fourCharCode("gain"), 4602678819172646912.0}}));
}

TEST_F(Vst2BankImportTest, theIdentifierIsCheckedWhenAsked) {
    EXPECT_FALSE(import(encodeBank(exampleBank()), fourCharCode("none")));
    EXPECT_TRUE(import(encodeBank(exampleBank()), fourCharCode("qmBR")));
}

TEST_F(Vst2BankImportTest, aChunkOfAnotherKindDeclines) {
    Vst2Fixture chunk = exampleChunk();
    chunk.marker = 0x12345678;
    BankFixture bank;
    bank.chunk = encodeVst2(chunk);
    EXPECT_FALSE(import(encodeBank(bank)));
    bank.chunk.clear();
    EXPECT_FALSE(import(encodeBank(bank)));
}

TEST_F(Vst2BankImportTest, aCountOfEntriesBeyondTheChunkDeclines) {
    Vst2Fixture chunk = exampleChunk();
    for (const std::uint32_t count : {1000u, 0x10000000u, 0xFFFFFFFFu}) {
        chunk.claimedEntryCount = count;
        BankFixture bank;
        bank.chunk = encodeVst2(chunk);
        EXPECT_FALSE(import(encodeBank(bank))) << count;
    }
}

TEST_F(Vst2BankImportTest, aBankOfProgramsDeclines) {
    ProgramFixture program;
    program.values = {0.5F};
    ProgramFixture opaque;
    opaque.kind = "FPCh";
    opaque.chunk = encodeVst2(exampleChunk());
    for (const ProgramFixture& one : {program, opaque}) {
        BankFixture bank;
        bank.kind = "FxBk";
        bank.programs = {one};
        EXPECT_FALSE(import(encodeBank(bank)));
    }
}

TEST_F(Vst2BankImportTest, whatIsNoBankDeclines) {
    EXPECT_FALSE(import({}));
    EXPECT_FALSE(import(bytesOf({'C', 'c', 'n'})));
    EXPECT_FALSE(import(encodeVst3({0, encodeRecord(exampleRecord())})));
    EXPECT_FALSE(import(Bytes(1000)));
}

TEST_F(Vst2BankImportTest, truncationAtEveryByteDeclines) {
    const Bytes whole = encodeBank(exampleBank());
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(import(firstBytes(whole, length))) << length;
}

TEST_F(Vst2BankImportTest, everySingleBitFlipIsImportedOrDeclines) {
    const Bytes whole = encodeBank(exampleBank());
    int imported = 0;
    int declined = 0;
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        ++(import(withBitFlipped(whole, bit)) ? imported : declined);
        sink.entries.clear();
    }
    EXPECT_GT(imported, 1000);
    EXPECT_GT(declined, 32 * 4);
}

namespace {

class ThrowingSink : public IStateEntrySink {
public:
    void restoreParameter(FourCharCode, double) override { throw std::runtime_error("no"); }
};

/// Counts the bytes it gives.
class MeasuredStream : public StateMemoryStream {
public:
    using StateMemoryStream::StateMemoryStream;
    std::size_t given = 0;

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override {
        const std::size_t count = StateMemoryStream::read(size, destination);
        given += count;
        return count;
    }
};

/// Cannot tell where it is, or cannot go there; and must not be read then.
class FixedStream : public StateMemoryStream {
public:
    using StateMemoryStream::StateMemoryStream;
    bool tells = false;
    int reads = 0;

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override {
        ++reads;
        return StateMemoryStream::read(size, destination);
    }

    [[nodiscard]] std::int64_t tell() const override { return tells ? 0 : -1; }

    bool seek(std::int64_t) override { return false; }
};

} // namespace

TEST_F(Vst2BankImportTest, thePositionIsRestoredWhenTheSinkThrows) {
    const Bytes all = ByteBuilder().text("xyz").append(encodeBank(exampleBank())).bytes();
    StateMemoryStream stream(all);
    EXPECT_TRUE(stream.seek(3));
    ThrowingSink throwing;
    EXPECT_THROW(importVst2Bank(stream, {throwing}), std::runtime_error);
    EXPECT_EQ(stream.tell(), 3);
}

TEST_F(Vst2BankImportTest, aStreamThatCannotBePutBackIsNotTouched) {
    for (const bool tells : {false, true}) {
        FixedStream stream(encodeBank(exampleBank()));
        stream.tells = tells;
        EXPECT_FALSE(importVst2Bank(stream, {sink}));
        EXPECT_EQ(stream.reads, 0);
        EXPECT_TRUE(sink.entries.empty());
    }
}

TEST_F(Vst2BankImportTest, anEnvelopeIsReadNoFurtherThanABanksMagicWouldBe) {
    MeasuredStream stream(encodeVst3({0, encodeRecord(exampleRecord())}));
    EXPECT_FALSE(importVst2Bank(stream, {sink}));
    EXPECT_EQ(stream.given, 4u);
}
