// SPDX-License-Identifier: GPL-3.0-or-later
// Delivery of the SHARC packet set: another generation, and everything goes as coefficients.
#include "plugin-model/NoxSharcFlusher.h"

#include "plugin-model/tests/FlusherTestDoubles.h"

using flusherTest::append;
using flusherTest::PointsToWords;
using testing::InSequence;
using testing::Ref;
using testing::Return;
using testing::SizeIs;
using testing::StrictMock;

namespace {

using Words = std::vector<std::uint32_t>;

constexpr std::uint64_t remoteID = 0x123456789ABCDEF0u;

class SharcFlusher : public testing::Test {
protected:
    parameterTest::Set set;
    StrictMock<flusherTest::Values> values{set};
    StrictMock<flusherTest::PlugIn> plugIn;
    StrictMock<MockProcessingHost> host;
};

} // namespace

TEST_F(SharcFlusher, sendsEveryPacketAsCoefficientsWhateverItsKind) {
    EXPECT_CALL(plugIn, processingHost()).WillRepeatedly(Return(&host));
    const InSequence inSequence;
    EXPECT_CALL(values, generateSharcPackets(SizeIs(0)))
        .WillOnce(append({{1, {9}}, {0, {1, 2, 3}}, {7, {4, 5}}}));
    EXPECT_CALL(host, sendCoefficients(0u, Ref(plugIn), remoteID, 1u, PointsToWords(Words{9})));
    EXPECT_CALL(host,
                sendCoefficients(0u, Ref(plugIn), remoteID, 3u, PointsToWords(Words{1, 2, 3})));
    EXPECT_CALL(host, sendCoefficients(0u, Ref(plugIn), remoteID, 2u, PointsToWords(Words{4, 5})));
    EXPECT_CALL(values, releasePackets(SizeIs(3))).WillOnce(flusherTest::empty());
    NoxSharcFlusher(&plugIn).flush(values);
}

TEST_F(SharcFlusher, sendsNothingForValuesWithoutASharcSet) {
    QM::QMParameterValues plain(set, 44100.0);
    EXPECT_CALL(plugIn, processingHost()).WillRepeatedly(Return(&host));
    NoxSharcFlusher(&plugIn).flush(plain);
}

TEST_F(SharcFlusher, generatesNothingWithoutInstanceOrHost) {
    NoxSharcFlusher(nullptr).flush(values);
    EXPECT_CALL(plugIn, processingHost()).WillOnce(Return(nullptr));
    NoxSharcFlusher(&plugIn).flush(values);
}

TEST_F(SharcFlusher, theStatusIsTheHostsWordOrZero) {
    EXPECT_EQ(NoxSharcFlusher(nullptr).hostStatus(), 0u);
    EXPECT_CALL(plugIn, processingHost()).WillOnce(Return(nullptr)).WillOnce(Return(&host));
    EXPECT_CALL(host, hostWord()).WillOnce(Return(12u));
    EXPECT_EQ(NoxSharcFlusher(&plugIn).hostStatus(), 0u);
    EXPECT_EQ(NoxSharcFlusher(&plugIn).hostStatus(), 12u);
}
