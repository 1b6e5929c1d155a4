// SPDX-License-Identifier: GPL-3.0-or-later
// Delivery in process.
#include "plugin-model/QMShellFlusher.h"

#include "plugin-model/tests/FlusherTestDoubles.h"

using flusherTest::append;
using flusherTest::IsPacket;
using testing::_;
using testing::InSequence;
using testing::Return;
using testing::SizeIs;
using testing::StrictMock;
using testing::Throw;

namespace {

using Words = std::vector<std::uint32_t>;

class ShellFlusher : public testing::Test {
protected:
    parameterTest::Set set;
    StrictMock<flusherTest::Values> values{set};
    StrictMock<flusherTest::PlugIn> plugIn;
    StrictMock<MockProcessingHost> host;
};

} // namespace

TEST_F(ShellFlusher, deliversThePacketsInOrderAndThenReleasesThem) {
    const InSequence inSequence;
    EXPECT_CALL(values, generatePackets(SizeIs(0)))
        .WillOnce(append({{0, {1, 2}}, {1, {0x1000000}}, {0, {3}}, {0xFFFFFFFF, {4, 5, 6}}}));
    EXPECT_CALL(plugIn, pushCoefficients(IsPacket(0u, Words{1, 2})));
    EXPECT_CALL(plugIn, handleMessage(IsPacket(1u, Words{0x1000000})));
    EXPECT_CALL(plugIn, pushCoefficients(IsPacket(0u, Words{3})));
    EXPECT_CALL(plugIn, handleMessage(IsPacket(0xFFFFFFFFu, Words{4, 5, 6})));
    EXPECT_CALL(values, releasePackets(SizeIs(4))).WillOnce(flusherTest::empty());
    QMShellFlusher(&plugIn).flush(values);
}

TEST_F(ShellFlusher, deliversNothingWhenNothingIsGenerated) {
    const InSequence inSequence;
    EXPECT_CALL(values, generatePackets(_));
    EXPECT_CALL(values, releasePackets(SizeIs(0)));
    QMShellFlusher(&plugIn).flush(values);
}

TEST_F(ShellFlusher, deliversAPacketOfAnyLengthAndLeavesTheCheckToTheInstance) {
    EXPECT_CALL(values, generatePackets(_)).WillOnce(append({{0, {}}, {0, Words(100)}}));
    EXPECT_CALL(plugIn, pushCoefficients(IsPacket(0u, Words{})));
    EXPECT_CALL(plugIn, pushCoefficients(IsPacket(0u, Words(100))));
    EXPECT_CALL(values, releasePackets(_));
    QMShellFlusher(&plugIn).flush(values);
}

TEST_F(ShellFlusher, generatesNothingWithoutAnInstance) {
    // The strict mocks fail on any call.
    QMShellFlusher(nullptr).flush(values);
}

TEST_F(ShellFlusher, anExceptionOfTheGenerationReachesTheCaller) {
    EXPECT_CALL(values, generatePackets(_)).WillOnce(Throw(std::bad_alloc()));
    EXPECT_THROW(QMShellFlusher(&plugIn).flush(values), std::bad_alloc);
}

TEST_F(ShellFlusher, theStatusIsTheHostsWord) {
    EXPECT_CALL(plugIn, processingHost()).WillRepeatedly(Return(&host));
    EXPECT_CALL(host, hostWord()).WillOnce(Return(0u)).WillOnce(Return(0xCAFEF00Du));
    const QMShellFlusher flusher(&plugIn);
    EXPECT_EQ(flusher.hostStatus(), 0u);
    EXPECT_EQ(flusher.hostStatus(), 0xCAFEF00Du);
}

TEST_F(ShellFlusher, theStatusIsZeroWithoutInstanceOrHost) {
    EXPECT_EQ(QMShellFlusher(nullptr).hostStatus(), 0u);
    EXPECT_CALL(plugIn, processingHost()).WillOnce(Return(nullptr));
    EXPECT_EQ(QMShellFlusher(&plugIn).hostStatus(), 0u);
}
