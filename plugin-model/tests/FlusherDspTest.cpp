// SPDX-License-Identifier: GPL-3.0-or-later
// Delivery to a remote DSP through the processing host.
#include "plugin-model/DspFlusher.h"

#include "plugin-model/tests/FlusherTestDoubles.h"

using flusherTest::append;
using flusherTest::PointsToWords;
using testing::_;
using testing::InSequence;
using testing::Ref;
using testing::Return;
using testing::SizeIs;
using testing::StrictMock;

namespace {

using Words = std::vector<std::uint32_t>;

constexpr std::uint64_t remoteID = 0x123456789ABCDEF0u;

class RemoteDspFlusher : public testing::Test {
protected:
    void attachHost() { EXPECT_CALL(plugIn, processingHost()).WillRepeatedly(Return(&host)); }

    parameterTest::Set set;
    StrictMock<flusherTest::Values> values{set};
    StrictMock<flusherTest::PlugIn> plugIn;
    StrictMock<MockProcessingHost> host;
};

} // namespace

TEST_F(RemoteDspFlusher, sendsRecordsAsCoefficientsAndTheRestAsMessagesInOrder) {
    attachHost();
    const InSequence inSequence;
    EXPECT_CALL(values, generatePackets(SizeIs(0)))
        .WillOnce(append({{1, {9}}, {0, {1, 2, 3}}, {7, {4, 5}}}));
    EXPECT_CALL(host, sendMessage(0u, Ref(plugIn), remoteID, 1u, PointsToWords(Words{9})));
    EXPECT_CALL(host,
                sendCoefficients(0u, Ref(plugIn), remoteID, 3u, PointsToWords(Words{1, 2, 3})));
    EXPECT_CALL(host, sendMessage(0u, Ref(plugIn), remoteID, 2u, PointsToWords(Words{4, 5})));
    EXPECT_CALL(values, releasePackets(SizeIs(3))).WillOnce(flusherTest::empty());
    DspFlusher(&plugIn).flush(values);
}

TEST_F(RemoteDspFlusher, countsWholeWords) {
    attachHost();
    EXPECT_CALL(values, generatePackets(_)).WillOnce([](PacketList& list) {
        list.push_back(std::make_unique<Packet>(0u, 11u));
    });
    EXPECT_CALL(host, sendCoefficients(0u, _, _, 2u, _));
    EXPECT_CALL(values, releasePackets(_));
    DspFlusher(&plugIn).flush(values);
}

TEST_F(RemoteDspFlusher, goesOnAfterAFailedSend) {
    attachHost();
    EXPECT_CALL(values, generatePackets(_)).WillOnce(append({{0, {1}}, {0, {2}}}));
    EXPECT_CALL(host, sendCoefficients(0u, _, _, 1u, _))
        .Times(2)
        .WillRepeatedly(Return(NoxResultCode::boxOffline));
    EXPECT_CALL(values, releasePackets(SizeIs(2)));
    DspFlusher(&plugIn).flush(values);
}

TEST_F(RemoteDspFlusher, generatesNothingWithoutInstanceOrHost) {
    DspFlusher(nullptr).flush(values);
    EXPECT_CALL(plugIn, processingHost()).WillOnce(Return(nullptr));
    DspFlusher(&plugIn).flush(values);
}

TEST_F(RemoteDspFlusher, theStatusIsTheHostsWordOrZero) {
    EXPECT_EQ(DspFlusher(nullptr).hostStatus(), 0u);
    EXPECT_CALL(plugIn, processingHost()).WillOnce(Return(nullptr)).WillOnce(Return(&host));
    EXPECT_CALL(host, hostWord()).WillOnce(Return(0x80000001u));
    EXPECT_EQ(DspFlusher(&plugIn).hostStatus(), 0u);
    EXPECT_EQ(DspFlusher(&plugIn).hostStatus(), 0x80000001u);
}
