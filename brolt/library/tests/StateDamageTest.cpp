// SPDX-License-Identifier: GPL-3.0-or-later
// What damaged projects and strange hosts hand over as a state: taken whole, or not at all.
#include "brolt/library/tests/support/StateRestoringTest.h"
#include "presets/record/tests/support/MessagePackEncoder.h"

#include <cmath>
#include <limits>
#include <random>

using Steinberg::kInvalidArgument;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

class StateDamage : public StateRestoringTest {};

} // namespace

TEST_F(StateDamage, ofAnotherVersionIsReadUnlessItIsNegative) {
    for (const std::int32_t version : {0, 1, 7, 0x7FFFFFFF}) {
        LibraryInstance other;
        EXPECT_EQ(other.restore(encodeVst3({version, encodeRecord(savedRecord())})), kResultOk)
            << version;
        expectSaved(other);
    }
    expectRefused(encodeVst3({-1, encodeRecord(savedRecord())}));
    expectRefused(encodeVst3({std::numeric_limits<std::int32_t>::min(), {}}));
}

TEST_F(StateDamage, longerThanTheStreamIsRefused) {
    const Bytes record = encodeRecord(savedRecord());
    const auto size = static_cast<std::uint32_t>(record.size());
    expectRefused(encodeVst3({0, record, size + 1}));
    expectRefused(encodeVst3({0, record, 0x10000000}));
    expectRefused(encodeVst3({0, record, 0x7FFFFFFF}));
}

TEST_F(StateDamage, ofNegativeLengthIsRefused) {
    expectRefused(encodeVst3({0, encodeRecord(savedRecord()), 0xFFFFFFFF}));
    expectRefused(encodeVst3({0, encodeRecord(savedRecord()), 0x80000000}));
}

TEST_F(StateDamage, cutOffAtAnyByteIsRefused) {
    const Bytes whole = savedState();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectRefused(firstBytes(whole, length));
    }
    EXPECT_EQ(instance.restore(whole), kResultOk);
    expectSaved(instance);
}

TEST_F(StateDamage, withAnyBitTurnedIsReadOrRefusedWhole) {
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

TEST_F(StateDamage, ofRandomBytesIsRefused) {
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) {
        Bytes bytes(random() % 400);
        for (std::byte& byte : bytes)
            byte = static_cast<std::byte>(random() & 0xFF);
        SCOPED_TRACE(i);
        expectRefused(bytes);
    }
}

TEST_F(StateDamage, ofMembersOfTheWrongTypeIsRefused) {
    RecordFixture record = savedRecord();
    record.extension = packed::object({{"mBlendX", packed::text("no number")}});
    expectRefused(savedState(record));
    record.extension = packed::object({{"mSnapshotPopulated", packed::integer(1)}});
    expectRefused(savedState(record));
}

// A readable record is what the interface asks for; the instance knows whose it is.
TEST_F(StateDamage, ofAnotherProductChangesNothing) {
    RecordFixture record = savedRecord();
    record.productCode = "ELSE";
    const Bytes before = instance.state();
    EXPECT_EQ(instance.restore(savedState(record)), kResultOk);
    EXPECT_EQ(instance.state(), before);
}

TEST_F(StateDamage, withValuesOutOfRangeOrNotNumbersIsTakenClamped) {
    RecordFixture record = savedRecord();
    record.values = {{"afre", 1e300}, {"gain", -1e300}, {"wetd", std::nan("")}, {"zzzz", 1.0}};
    EXPECT_EQ(instance.restore(savedState(record)), kResultOk);
    EXPECT_NEAR(instance.plain("afre"), 440.0, 1e-9);
    EXPECT_EQ(instance.plain("gain"), -24.0);
    EXPECT_EQ(instance.plain("wetd"), 0.0);
}

TEST_F(StateDamage, withoutAStreamIsAnInvalidArgument) {
    EXPECT_EQ(instance.component().setState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.component().getState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.controller().setComponentState(nullptr), kInvalidArgument);
    EXPECT_EQ(instance.controller().setState(nullptr), kResultFalse);
    EXPECT_EQ(instance.controller().getState(nullptr), kResultOk);
}

TEST_F(StateDamage, fromAStreamThatFailsIsRefused) {
    for (std::size_t good = 0; good < savedState().size(); good += 3) {
        HostStream stream(savedState());
        stream.readsFailFrom = good;
        SCOPED_TRACE(good);
        expectRefused(stream);
    }
}

TEST_F(StateDamage, fromAStreamThatGivesALittleAtATimeIsReadWhole) {
    for (const std::size_t most : {1U, 3U, 7U}) {
        LibraryInstance other;
        HostStream stream(savedState());
        stream.mostAtOnce = most;
        EXPECT_EQ(other.component().setState(&stream), kResultOk);
        expectSaved(other);
    }
}

TEST_F(StateDamage, fromAStreamThatCannotBePositionedIsRead) {
    HostStream stream(savedState());
    stream.canSeek = false;
    EXPECT_EQ(instance.component().setState(&stream), kResultOk);
    expectSaved(instance);
}

TEST_F(StateDamage, isSavedWithSuccessEvenToAFullStream) {
    for (const std::size_t room : {0U, 4U, 8U, 20U}) {
        HostStream stream;
        stream.writesFailFrom = room;
        EXPECT_EQ(instance.component().getState(&stream), kResultOk) << room;
        EXPECT_LE(stream.bytes.size(), room);
    }
}

TEST_F(StateDamage, isRefusedOutsideOfTheInstancesLife) {
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
