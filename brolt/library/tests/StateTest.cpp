// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and restoring through the library's streams: what projects hold, and what damaged
// projects, strange hosts and the VST 2 plug-in's projects hand over.
#include "QMShell/state/StateRecordBytes.h"
#include "brolt/library/tests/support/HostStream.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"
#include "brolt/library/tests/support/StateFixtures.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <cmath>
#include <random>

using Steinberg::kInvalidArgument;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

std::uint32_t wordAt(const Bytes& bytes, std::size_t position) {
    std::uint32_t word = 0;
    for (std::size_t i = 4; i-- > 0;)
        word = word << 8 | std::to_integer<std::uint32_t>(bytes.at(position + i));
    return word;
}

std::string describeState(const Bytes& state) {
    return describeRecord(readRecordPlainly(std::span(state).subspan(8)));
}

class State : public ::testing::Test {
protected:
    LibraryInstance instance;

    void expectSaved(LibraryInstance& restored) {
        EXPECT_NEAR(restored.plain("afre"), 123.5, 1e-9);
        EXPECT_NEAR(restored.plain("gain"), -6.0, 1e-9);
        EXPECT_EQ(restored.plain("osc2"), 0.0);
        EXPECT_NEAR(restored.plain("wetd"), 40.0, 1e-9);
    }

    /// Refused, and nothing has changed.
    void expectRefused(HostStream& stream) {
        const Bytes before = instance.state();
        EXPECT_EQ(instance.component().setState(&stream), kResultFalse);
        EXPECT_EQ(instance.state(), before);
    }

    void expectRefused(const Bytes& bytes) {
        HostStream stream(bytes);
        expectRefused(stream);
    }
};

} // namespace

TEST_F(State, isAVersionALengthAndARecord) {
    instance.set("gain", -6.0);
    const Bytes bytes = instance.state();
    ASSERT_GT(bytes.size(), 8U);
    EXPECT_EQ(wordAt(bytes, 0), 0U);
    EXPECT_EQ(wordAt(bytes, 4), bytes.size() - 8);
    const auto record = readRecordPlainly(std::span(bytes).subspan(8));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->manufacturerCode, fourCharCode("QML "));
    EXPECT_EQ(record->productCode, fourCharCode("BRLT"));
    EXPECT_EQ(record->values.at(fourCharCode("gain")), -6.0);
    EXPECT_EQ(record->values.at(fourCharCode("attk")), 2.0);
}

TEST_F(State, isThatOfTheModel) {
    ModelTwin twin;
    twin.set("gain", -6.0);
    twin.set("afre", 300.0);
    instance.set("gain", -6.0);
    instance.set("afre", 300.0);
    EXPECT_EQ(describeState(instance.state()),
              describeRecord(twin.model().getStateRecord(StateExtent::complete)));
}

TEST_F(State, isWrittenWhereTheStreamStandsAndReadThere) {
    HostStream stream(bytesOf({1, 2, 3, 4, 5}));
    stream.position = 5;
    instance.set("gain", -6.0);
    ASSERT_EQ(instance.component().getState(&stream), kResultOk);
    stream.bytes.push_back(std::byte{0xEE}); // what the host keeps behind it
    stream.position = 5;
    LibraryInstance other;
    EXPECT_EQ(other.component().setState(&stream), kResultOk);
    EXPECT_NEAR(other.plain("gain"), -6.0, 1e-9);
    EXPECT_EQ(stream.position, stream.bytes.size() - 1);
}

TEST_F(State, comesBackWhole) {
    for (Vst::ParamID id = 1; id < 15; ++id)
        instance.setNormalised(id, id == 3 || id == 7 ? 0.0 : 0.05 * id);
    LibraryInstance other;
    ASSERT_EQ(other.restore(instance.state()), kResultOk);
    for (Vst::ParamID id = 1; id < 15; ++id)
        EXPECT_EQ(other.normalised(id), instance.normalised(id)) << id;
    EXPECT_EQ(other.state(), instance.state());
}

TEST_F(State, leavesTheBypassAsItIs) {
    instance.setNormalised(0, 1.0);
    LibraryInstance other;
    ASSERT_EQ(other.restore(instance.state()), kResultOk);
    EXPECT_EQ(other.normalised(0), 0.0);
    ASSERT_EQ(instance.restore(other.state()), kResultOk);
    EXPECT_EQ(instance.normalised(0), 1.0);
}

TEST_F(State, ofOneLayoutLoadsInTheOther) {
    LibraryInstance mono;
    mono.start({.channels = 1});
    mono.set("afre", 123.5);
    mono.set("gain", -6.0);
    mono.set("osc2", 0.0);
    mono.set("wetd", 40.0);
    ASSERT_EQ(instance.restore(mono.state()), kResultOk);
    expectSaved(instance);
    LibraryInstance third;
    ASSERT_EQ(third.arrange(1), kResultOk);
    ASSERT_EQ(third.restore(instance.state()), kResultOk);
    expectSaved(third);
}

TEST_F(State, ofAnotherVersionIsReadUnlessItIsNegative) {
    for (const std::int32_t version : {0, 1, 7, 0x7FFFFFFF}) {
        LibraryInstance other;
        EXPECT_EQ(other.restore(encodeVst3({version, encodeRecord(savedRecord())})), kResultOk)
            << version;
        expectSaved(other);
    }
    expectRefused(encodeVst3({-1, encodeRecord(savedRecord())}));
    expectRefused(encodeVst3({std::numeric_limits<std::int32_t>::min(), {}}));
}

TEST_F(State, longerThanTheStreamIsRefused) {
    const Bytes record = encodeRecord(savedRecord());
    const auto size = static_cast<std::uint32_t>(record.size());
    expectRefused(encodeVst3({0, record, size + 1}));
    expectRefused(encodeVst3({0, record, 0x10000000}));
    expectRefused(encodeVst3({0, record, 0x7FFFFFFF}));
}

TEST_F(State, ofNegativeLengthIsRefused) {
    expectRefused(encodeVst3({0, encodeRecord(savedRecord()), 0xFFFFFFFF}));
    expectRefused(encodeVst3({0, encodeRecord(savedRecord()), 0x80000000}));
}

TEST_F(State, cutOffAtAnyByteIsRefused) {
    const Bytes whole = savedState();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectRefused(firstBytes(whole, length));
    }
    EXPECT_EQ(instance.restore(whole), kResultOk);
    expectSaved(instance);
}

TEST_F(State, withAnyBitTurnedIsReadOrRefusedWhole) {
    const Bytes whole = savedState();
    const Bytes initial = instance.state();
    for (std::size_t bit = 0; bit < whole.size() * 8; bit += 5) {
        const tresult result = instance.restore(withBitFlipped(whole, bit));
        EXPECT_TRUE(result == kResultOk || result == kResultFalse) << bit;
        if (result == kResultFalse) {
            EXPECT_EQ(instance.state(), initial) << bit;
        }
        ASSERT_EQ(instance.restore(initial), kResultOk);
    }
}

TEST_F(State, ofRandomBytesIsRefused) {
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) {
        Bytes bytes(random() % 400);
        for (std::byte& byte : bytes)
            byte = static_cast<std::byte>(random() & 0xFF);
        SCOPED_TRACE(i);
        expectRefused(bytes);
    }
}

TEST_F(State, ofMembersOfTheWrongTypeIsRefused) {
    RecordFixture record = savedRecord();
    record.extension = packed::object({{"mBlendX", packed::text("no number")}});
    expectRefused(savedState(record));
    record.extension = packed::object({{"mSnapshotPopulated", packed::integer(1)}});
    expectRefused(savedState(record));
}

// A readable record is what the interface asks for; the instance knows whose it is.
TEST_F(State, ofAnotherProductChangesNothing) {
    RecordFixture record = savedRecord();
    record.productCode = "ELSE";
    const Bytes before = instance.state();
    EXPECT_EQ(instance.restore(savedState(record)), kResultOk);
    EXPECT_EQ(instance.state(), before);
}

TEST_F(State, withValuesOutOfRangeOrNotNumbersIsTakenClamped) {
    RecordFixture record = savedRecord();
    record.values = {{"afre", 1e300}, {"gain", -1e300}, {"wetd", std::nan("")}, {"zzzz", 1.0}};
    EXPECT_EQ(instance.restore(savedState(record)), kResultOk);
    EXPECT_NEAR(instance.plain("afre"), 440.0, 1e-9);
    EXPECT_EQ(instance.plain("gain"), -24.0);
    EXPECT_EQ(instance.plain("wetd"), 0.0);
}

TEST_F(State, isTakenFromTheControllersSideToo) {
    HostStream stream(savedState());
    EXPECT_EQ(instance.controller().setComponentState(&stream), kResultOk);
    expectSaved(instance);
    HostStream damaged(firstBytes(savedState(), 20));
    EXPECT_EQ(instance.controller().setComponentState(&damaged), kResultFalse);
    expectSaved(instance);
}

TEST_F(State, ofTheControllerAloneIsEmpty) {
    HostStream stream;
    EXPECT_EQ(instance.controller().getState(&stream), kResultOk);
    EXPECT_TRUE(stream.bytes.empty());
    EXPECT_EQ(stream.writes, 0);
    EXPECT_EQ(instance.controller().setState(&stream), kResultFalse);
    HostStream saved(savedState());
    EXPECT_EQ(instance.controller().setState(&saved), kResultFalse);
    EXPECT_EQ(instance.normalised(14), 0.5);
}

TEST_F(State, withoutAStreamIsAnInvalidArgument) {
    EXPECT_EQ(instance.component().setState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.component().getState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.controller().setComponentState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.controller().setState(nullptr), kResultFalse);
    EXPECT_EQ(instance.controller().getState(nullptr), kResultOk);
}

TEST_F(State, fromAStreamThatFailsIsRefused) {
    for (std::size_t good = 0; good < savedState().size(); good += 3) {
        HostStream stream(savedState());
        stream.readsFailFrom = good;
        SCOPED_TRACE(good);
        expectRefused(stream);
    }
}

TEST_F(State, fromAStreamThatGivesALittleAtATimeIsReadWhole) {
    for (const std::size_t most : {1U, 3U, 7U}) {
        LibraryInstance other;
        HostStream stream(savedState());
        stream.mostAtOnce = most;
        EXPECT_EQ(other.component().setState(&stream), kResultOk);
        expectSaved(other);
    }
}

TEST_F(State, fromAStreamThatCannotBePositionedIsRead) {
    HostStream stream(savedState());
    stream.canSeek = false;
    EXPECT_EQ(instance.component().setState(&stream), kResultOk);
    expectSaved(instance);
}

TEST_F(State, isSavedWithSuccessEvenToAFullStream) {
    for (const std::size_t room : {0U, 4U, 8U, 20U}) {
        HostStream stream;
        stream.writesFailFrom = room;
        EXPECT_EQ(instance.component().getState(&stream), kResultOk) << room;
        EXPECT_LE(stream.bytes.size(), room);
    }
}

TEST_F(State, isHeard) {
    instance.start();
    ASSERT_EQ(instance.restore(savedState()), kResultOk);
    ModelTwin twin;
    ASSERT_TRUE(twin.model().applyStateRecord(*readRecordBytes(encodeRecord(savedRecord()))));
    const Audio input = testAudio(2, 4000);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_F(State, mayBeSetBeforeDuringAndAfterActivation) {
    const Bytes saved = savedState();
    ASSERT_EQ(instance.restore(saved), kResultOk);
    expectSaved(instance);
    instance.start();
    expectSaved(instance);
    instance.set("gain", 1.0);
    ASSERT_EQ(instance.restore(saved), kResultOk);
    expectSaved(instance);
    instance.stop();
    instance.set("gain", 1.0);
    ASSERT_EQ(instance.restore(saved), kResultOk);
    expectSaved(instance);
}

TEST_F(State, isRefusedOutsideOfTheInstancesLife) {
    LibraryInstance other(LibraryInstance::Begin::created);
    HostStream stream(savedState());
    EXPECT_EQ(other.component().setState(&stream), kResultFalse);
    HostStream none;
    EXPECT_NE(other.component().getState(&none), kResultOk);
    EXPECT_TRUE(none.bytes.empty());
    ASSERT_EQ(other.initialise(), kResultOk);
    ASSERT_EQ(other.component().terminate(), kResultOk);
    stream.position = 0;
    EXPECT_EQ(other.component().setState(&stream), kResultFalse);
    EXPECT_NE(other.component().getState(&none), kResultOk);
}
