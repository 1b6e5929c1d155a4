// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and restoring through the library's streams: what projects hold.
#include "QMShell/state/StateRecordBytes.h"
#include "brolt/library/tests/support/ModelTwin.h"
#include "brolt/library/tests/support/StateRestoringTest.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

using Steinberg::kResultFalse;
using Steinberg::kResultOk;

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

class State : public StateRestoringTest {};

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
