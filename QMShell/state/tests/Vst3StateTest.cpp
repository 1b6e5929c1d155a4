// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst3State.h"

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst3Envelope.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class NotingSink : public IStateEntrySink {
public:
    std::vector<std::pair<FourCharCode, double>> entries;

    void restoreParameter(FourCharCode identifier, double storedValue) override {
        entries.emplace_back(identifier, storedValue);
    }
};

class Vst3State : public ::testing::Test {
protected:
    Vst3StateReading read(const Bytes& bytes) {
        StateMemoryStream stream(bytes);
        return readVst3State(stream, plugIn, {sink});
    }

    [[nodiscard]] std::string state() const { return describeRecord(plugIn.state); }

    void expectRefused(const Bytes& bytes) {
        const std::string before = state();
        EXPECT_EQ(read(bytes), Vst3StateReading::refused);
        EXPECT_EQ(state(), before);
        EXPECT_TRUE(plugIn.calls.empty());
        EXPECT_TRUE(sink.entries.empty());
    }

    FakeStatefulPlugIn plugIn;
    NotingSink sink;
};

/// The fake's state as a fixture.
RecordFixture fakesRecord() {
    RecordFixture record;
    record.name = "fake";
    record.values = {{"afre", 123.5}, {"gain", -6.02}, {"mbyp", 0.0}};
    record.extension = packed::object({{"mBlendX", packed::real(0.25)}});
    record.uniqueId = 0x8000000000000077u;
    return record;
}

Bytes exampleEnvelope() {
    return encodeVst3({0, encodeRecord(exampleRecord())});
}

std::string example() {
    return describeRecord(readRecordPlainly(encodeRecord(exampleRecord())));
}

} // namespace

TEST_F(Vst3State, theCompleteStateIsWrittenAsTheEncodersBytes) {
    StateMemoryStream stream;
    EXPECT_TRUE(writeVst3State(stream, plugIn));
    EXPECT_EQ(stream.bytes(), encodeVst3({0, encodeRecord(fakesRecord())}));
}

TEST_F(Vst3State, theEncodersBytesAreApplied) {
    EXPECT_EQ(read(exampleEnvelope()), Vst3StateReading::recordApplied);
    EXPECT_EQ(state(), example());
    EXPECT_EQ(plugIn.calls, std::vector<std::string>{"apply"});
}

TEST_F(Vst3State, stateIsWrittenAndReadWhereTheStreamStands) {
    StateMemoryStream stream;
    EXPECT_EQ(stream.write(5, "12345"), 5u);
    EXPECT_TRUE(writeVst3State(stream, plugIn));
    EXPECT_EQ(stream.write(3, "xyz"), 3u);
    EXPECT_TRUE(stream.seek(5));
    FakeStatefulPlugIn other;
    other.state.values.clear();
    EXPECT_EQ(readVst3State(stream, other, {sink}), Vst3StateReading::recordApplied);
    EXPECT_EQ(describeRecord(other.state), state());
    EXPECT_EQ(stream.tell(), static_cast<std::int64_t>(stream.bytes().size()) - 3);
}

TEST_F(Vst3State, everyVersionButANegativeOneIsRead) {
    for (const std::int32_t version : {0, 1, 7, 0x7FFFFFFF}) {
        FakeStatefulPlugIn other;
        StateMemoryStream stream(encodeVst3({version, encodeRecord(exampleRecord())}));
        EXPECT_EQ(readVst3State(stream, other, {sink}), Vst3StateReading::recordApplied) << version;
    }
    expectRefused(encodeVst3({-1, encodeRecord(exampleRecord())}));
    expectRefused(encodeVst3({std::numeric_limits<std::int32_t>::min(), {}}));
}

TEST_F(Vst3State, aLengthBeyondTheStreamIsRefused) {
    const Bytes record = encodeRecord(exampleRecord());
    const auto size = static_cast<std::uint32_t>(record.size());
    expectRefused(encodeVst3({0, record, size + 1}));
    expectRefused(encodeVst3({0, record, 0x7FFFFFFF}));
}

TEST_F(Vst3State, aLengthThatCutsTheRecordReadsWhatIsInsideOfIt) {
    const Bytes record = encodeRecord(exampleRecord());
    expectRefused(encodeVst3({0, record, 0}));
    expectRefused(encodeVst3({0, record, 20}));
}

TEST_F(Vst3State, aNegativeLengthIsTheByteContainersError) {
    const std::string before = state();
    for (const std::uint32_t length : {0x80000000u, 0xFFFFFFFFu}) {
        const Bytes bytes = encodeVst3({0, encodeRecord(exampleRecord()), length});
        EXPECT_THROW(read(bytes), std::length_error);
        EXPECT_EQ(state(), before);
        EXPECT_TRUE(plugIn.calls.empty());
    }
}

TEST_F(Vst3State, bytesThatAreNoRecordAreRefused) {
    RecordFixture otherMagic = exampleRecord();
    otherMagic.magic = "qmbx";
    expectRefused(encodeVst3({0, encodeRecord(otherMagic)}));
    RecordFixture damagedDocument = exampleRecord();
    damagedDocument.extension.pop_back();
    expectRefused(encodeVst3({0, encodeRecord(damagedDocument)}));
    expectRefused({});
    expectRefused(Bytes(100, std::byte{0xFF}));
}

TEST_F(Vst3State, readingIsToldInTheLogBeforeTheRecordIsApplied) {
    const LogCapture capture(QM::LogLevel::error);
    read(exampleEnvelope());
    EXPECT_EQ(capture.messages(), "==================================\n"
                                  "Setting from Generic Preset in VST3 stream\n");
}

TEST_F(Vst3State, refusingIsNotToldInTheLog) {
    const LogCapture capture(QM::LogLevel::trace);
    expectRefused(firstBytes(exampleEnvelope(), 40));
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(Vst3State, aRecordOfAnotherProductIsAcceptedAndDeclined) {
    const std::string before = state();
    RecordFixture other = exampleRecord();
    other.productCode = "XXXX";
    const Vst3StateReading reading = read(encodeVst3({0, encodeRecord(other)}));
    EXPECT_EQ(reading, Vst3StateReading::recordDeclined);
    EXPECT_TRUE(isAccepted(reading));
    EXPECT_EQ(state(), before);
}

TEST_F(Vst3State, whatApplyingThrowsComesThrough) {
    const std::string before = state();
    RecordFixture wrongType = exampleRecord();
    wrongType.extension = packed::object({{"mBlendX", packed::text("left")}});
    const Bytes bytes = encodeVst3({0, encodeRecord(wrongType)});
    EXPECT_THROW(read(bytes), nlohmann::json::exception);
    EXPECT_EQ(state(), before);
}

TEST_F(Vst3State, onlyARefusalIsNotAccepted) {
    EXPECT_FALSE(isAccepted(Vst3StateReading::refused));
    EXPECT_TRUE(isAccepted(Vst3StateReading::bankImported));
    EXPECT_TRUE(isAccepted(Vst3StateReading::recordApplied));
}

TEST_F(Vst3State, aBankIsTriedBeforeTheEnvelope) {
    Vst2Fixture chunk;
    chunk.entries = {{"gain", 0.5}};
    BankFixture bank;
    bank.chunk = encodeVst2(chunk);
    EXPECT_EQ(read(encodeBank(bank)), Vst3StateReading::bankImported);
    EXPECT_EQ(sink.entries,
              (std::vector<std::pair<FourCharCode, double>>{{fourCharCode("gain"), 0.5}}));
    EXPECT_TRUE(plugIn.calls.empty());
}

TEST_F(Vst3State, aBankThatIsDeclinedIsReadAsAnEnvelope) {
    // 'CcnK' is a positive version, its size a length: with this size the rest is a record.
    Bytes bytes = encodeVst3({0, encodeRecord(exampleRecord())});
    const Bytes magic = ByteBuilder().text("CcnK").bytes();
    std::copy(magic.begin(), magic.end(), bytes.begin());
    EXPECT_EQ(read(bytes), Vst3StateReading::recordApplied);
    EXPECT_EQ(state(), example());
}

TEST_F(Vst3State, truncationAtEveryByteIsRefused) {
    const Bytes whole = exampleEnvelope();
    for (std::size_t length = 0; length < whole.size(); ++length)
        expectRefused(firstBytes(whole, length));
}

TEST_F(Vst3State, everySingleBitFlipIsReadAsTheRecordInsideIsOrRefused) {
    const Bytes whole = encodeVst3({0, encodeRecord(fakesRecord())});
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        const Bytes bytes = withBitFlipped(whole, bit);
        FakeStatefulPlugIn other;
        StateMemoryStream stream(bytes);
        if (bit == 31) {
            EXPECT_EQ(readVst3State(stream, other, {sink}), Vst3StateReading::refused);
        } else if (bit == 63) {
            EXPECT_THROW(readVst3State(stream, other, {sink}), std::length_error);
        } else if (bit >= 32 && bit < 64 && bytes > whole) {
            // One of the length's bits was set: more is promised than there is.
            EXPECT_EQ(readVst3State(stream, other, {sink}), Vst3StateReading::refused) << bit;
        } else {
            Bytes record(bytes.begin() + 8, bytes.end());
            if (bit >= 32 && bit < 64)
                record.resize(record.size() - (std::size_t{1} << (bit - 32)));
            const auto expected = readRecordPlainly(record);
            EXPECT_EQ(describeRecord(readVst3Envelope(stream)), describeRecord(expected)) << bit;
        }
    }
}

namespace {

/// Takes no more than a number of bytes.
class FullStream : public StateMemoryStream {
public:
    explicit FullStream(std::size_t room)
        : left(room) {}

    [[nodiscard]] std::size_t write(std::size_t size, const void* bytes) override {
        const std::size_t count = std::min(size, left);
        left -= count;
        return StateMemoryStream::write(count, bytes);
    }

private:
    std::size_t left;
};

} // namespace

TEST_F(Vst3State, aStreamThatDoesNotTakeAllIsTold) {
    const std::size_t size = encodeVst3({0, encodeRecord(fakesRecord())}).size();
    for (const std::size_t room : {std::size_t{0}, std::size_t{3}, std::size_t{7}, size - 1}) {
        FullStream stream(room);
        EXPECT_FALSE(writeVst3State(stream, plugIn)) << room;
    }
    FullStream enough(size);
    EXPECT_TRUE(writeVst3State(enough, plugIn));
}
