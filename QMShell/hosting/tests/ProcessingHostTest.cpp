// SPDX-License-Identifier: GPL-3.0-or-later
// The processing host by itself: fixed answers, notifications, rate, block size, scratch buffers.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "QMShell/hosting/tests/MockHostedPlugIn.h"
#include "plugin-model/tests/StubEnvironment.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::InSequence;
using ::testing::Pointee;
using ::testing::Ref;
using ::testing::StrictMock;

TEST(ProcessingHost, hasFixedAnswers) {
    QMShellPlugInProcessingHost host;
    EXPECT_STREQ(host.className(), "QMShellPlugInProcessingHost");
    EXPECT_STREQ(host.hostLabel(), "n/a");
    EXPECT_EQ(host.runtimeArchitecture(), 13);
    EXPECT_EQ(host.hostWord(), 0u);
    EXPECT_EQ(host.sampleRate(), 44100.0);
    EXPECT_EQ(host.slotCount(), 0);
    EXPECT_EQ(host.defaultInputSlot(0), -1);
    EXPECT_EQ(host.defaultOutputSlot(1), -1);
}

TEST(ProcessingHost, hasNothingToSendTo) {
    TestTypeGroup group;
    NiceHostedPlugIn plugIn(group);
    QMShellPlugInProcessingHost host;
    const std::uint32_t words[] = {1, 2};
    EXPECT_CALL(plugIn, handleMessage).Times(0);
    EXPECT_EQ(host.sendCoefficients(0, plugIn, 1, 2, words), 6);
    EXPECT_EQ(host.sendMessage(0, plugIn, 1, 2, words), 6);
    EXPECT_EQ(host.announceTransfer(0, plugIn, 1, 0, nullptr), 0);
}

TEST(ProcessingHost, keepsItsFlagAndItsEnvironment) {
    StubEnvironment first;
    StubEnvironment second;
    QMShellPlugInProcessingHost host(&first);
    EXPECT_EQ(host.environment(), &first);
    host.setEnvironment(&second);
    EXPECT_EQ(host.environment(), &second);
    EXPECT_EQ(QMShellPlugInProcessingHost().environment(), nullptr);

    EXPECT_FALSE(host.hostFlag());
    host.setHostFlag();
    host.setHostFlag();
    EXPECT_TRUE(host.hostFlag());
    host.clearHostFlag();
    EXPECT_FALSE(host.hostFlag());
}

namespace {

class MockTarget : public INoxPlugInNotificationTarget {
public:
    MOCK_METHOD(void, deliverNotification, (std::uint64_t), (override));
};

} // namespace

TEST(ProcessingHostNotifications, areDeliveredAtOnceOutsideOfBrackets) {
    QMShellPlugInProcessingHost host;
    StrictMock<MockTarget> target;
    EXPECT_CALL(target, deliverNotification(0xFFFFFFFFFFFFFFFFu));
    host.postNotification(target, 0xFFFFFFFFFFFFFFFFu);
}

TEST(ProcessingHostNotifications, waitForTheOutermostBracketAndKeepTheirOrder) {
    QMShellPlugInProcessingHost host;
    StrictMock<MockTarget> first;
    StrictMock<MockTarget> second;
    host.beginNotifications();
    host.beginNotifications();
    host.postNotification(first, 1);
    host.postNotification(second, 2);
    host.endNotifications();
    host.postNotification(first, 3);
    const InSequence inOrder;
    EXPECT_CALL(first, deliverNotification(1));
    EXPECT_CALL(second, deliverNotification(2));
    EXPECT_CALL(first, deliverNotification(3));
    host.endNotifications();
}

TEST(ProcessingHostNotifications, areDeliveredOnce) {
    QMShellPlugInProcessingHost host;
    StrictMock<MockTarget> target;
    EXPECT_CALL(target, deliverNotification(1)).Times(1);
    host.beginNotifications();
    host.postNotification(target, 1);
    host.endNotifications();
    host.beginNotifications();
    host.endNotifications();
}

TEST(ProcessingHostNotifications, postedByADeliveryComeToo) {
    QMShellPlugInProcessingHost host;
    StrictMock<MockTarget> target;
    EXPECT_CALL(target, deliverNotification(1)).WillOnce([&] { host.postNotification(target, 2); });
    EXPECT_CALL(target, deliverNotification(2)).Times(1);
    host.beginNotifications();
    host.postNotification(target, 1);
    host.endNotifications();
}

TEST(ProcessingHostNotifications, anEndWithoutABeginDoesNotBlockWhatFollows) {
    QMShellPlugInProcessingHost host;
    StrictMock<MockTarget> target;
    host.endNotifications();
    EXPECT_CALL(target, deliverNotification(1));
    host.postNotification(target, 1);
}

namespace {

/// Hears what a processing host tells; anything else an instance would tell itself.
class MockNews : public StubEnvironment {
public:
    MOCK_METHOD(void, sampleRateSet, (INoxPlugIn&, const double*), (override));
    MOCK_METHOD(void, blockSizeSet, (INoxPlugIn&, std::int32_t), (override));
};

/// Three instances in slots 0 to 2.
class ProcessingHostRate : public ::testing::Test {
protected:
    TestTypeGroup group;
    StrictMock<MockNews> environment;
    NiceHostedPlugIn first{group};
    NiceHostedPlugIn second{group};
    NiceHostedPlugIn third{group};
    QMShellPlugInProcessingHost host{&environment};

    void SetUp() override {
        host.setSlotLimit(-1);
        for (MockHostedPlugIn* plugIn : {&first, &second, &third})
            ASSERT_EQ(host.instantiate(*plugIn), 0);
    }
};

} // namespace

TEST_F(ProcessingHostRate, aNewRateReachesEveryInstanceThenTheEnvironmentInSlotOrder) {
    const double rate = 48000.0;
    {
        const InSequence inOrder;
        for (MockHostedPlugIn* plugIn : {&first, &second, &third}) {
            EXPECT_CALL(*plugIn, setSampleRate(Pointee(48000.0)));
            EXPECT_CALL(environment, sampleRateSet(Ref(*plugIn), Pointee(48000.0)));
        }
    }
    host.setSampleRate(&rate);
    EXPECT_EQ(host.sampleRate(), 48000.0);
}

TEST_F(ProcessingHostRate, theSameRateAgainIsTheSecondTimeNobodysNews) {
    const double rate = 96000.0;
    for (MockHostedPlugIn* plugIn : {&first, &second, &third})
        EXPECT_CALL(*plugIn, setSampleRate).Times(1);
    EXPECT_CALL(environment, sampleRateSet).Times(3);
    host.setSampleRate(&rate);
    host.setSampleRate(&rate);
}

TEST_F(ProcessingHostRate, theRateOfTheStartIsKnownAlready) {
    const double rate = 44100.0;
    EXPECT_CALL(first, setSampleRate).Times(0);
    host.setSampleRate(&rate);
}

TEST_F(ProcessingHostRate, theComparisonIsExact) {
    const double rate = 44100.0 + 1e-9;
    EXPECT_CALL(first, setSampleRate(Pointee(rate)));
    EXPECT_CALL(environment, sampleRateSet).Times(3);
    host.setSampleRate(&rate);
}

TEST_F(ProcessingHostRate, freeSlotsAreSkipped) {
    host.removePlugIn(&second);
    const double rate = 48000.0;
    EXPECT_CALL(first, setSampleRate);
    EXPECT_CALL(second, setSampleRate).Times(0);
    EXPECT_CALL(third, setSampleRate);
    EXPECT_CALL(environment, sampleRateSet(Ref(first), _));
    EXPECT_CALL(environment, sampleRateSet(Ref(third), _));
    host.setSampleRate(&rate);

    EXPECT_CALL(first, setBlockSize(64));
    EXPECT_CALL(second, setBlockSize).Times(0);
    EXPECT_CALL(third, setBlockSize(64));
    EXPECT_CALL(environment, blockSizeSet(Ref(first), 64));
    EXPECT_CALL(environment, blockSizeSet(Ref(third), 64));
    host.setBlockSize(64);
}

TEST_F(ProcessingHostRate, aBlockSizeReachesEveryInstanceThenTheEnvironmentInSlotOrder) {
    {
        const InSequence inOrder;
        for (MockHostedPlugIn* plugIn : {&first, &second, &third}) {
            EXPECT_CALL(*plugIn, setBlockSize(512));
            EXPECT_CALL(environment, blockSizeSet(Ref(*plugIn), 512));
        }
    }
    host.setBlockSize(512);
    EXPECT_EQ(host.blockSize(), 512);
}

TEST_F(ProcessingHostRate, theSameBlockSizeAgainIsToldAgain) {
    EXPECT_CALL(first, setBlockSize(512)).Times(2);
    EXPECT_CALL(environment, blockSizeSet).Times(6);
    host.setBlockSize(512);
    host.setBlockSize(512);
}

TEST_F(ProcessingHostRate, withoutAnEnvironmentTheInstancesHearAllTheSame) {
    host.setEnvironment(nullptr);
    const double rate = 48000.0;
    EXPECT_CALL(first, setSampleRate(Pointee(48000.0)));
    EXPECT_CALL(third, setBlockSize(16));
    host.setSampleRate(&rate);
    host.setBlockSize(16);
}

TEST(ProcessingHostScratch, isABlockOfZeroesForEachBuffer) {
    QMShellPlugInProcessingHost host;
    host.setBlockSize(256);
    float* a = host.scratchBufferA();
    float* b = host.scratchBufferB();
    ASSERT_NE(a, nullptr);
    ASSERT_NE(b, nullptr);
    EXPECT_NE(a, b);
    for (int i = 0; i < 256; ++i) {
        ASSERT_EQ(a[i], 0.0F) << i;
        ASSERT_EQ(b[i], 0.0F) << i;
    }
    EXPECT_EQ(host.scratchBufferA(), a);
    EXPECT_EQ(host.scratchBufferB(), b);
}

TEST(ProcessingHostScratch, keepsItsFirstSizeAndContentAfterLaterBlockSizes) {
    QMShellPlugInProcessingHost host;
    host.setBlockSize(16);
    float* a = host.scratchBufferA();
    a[15] = 0.5F;
    host.setBlockSize(4096);
    EXPECT_EQ(host.scratchBufferA(), a);
    EXPECT_EQ(a[15], 0.5F);
    float* b = host.scratchBufferB(); // first asked for at the later size
    for (int i = 0; i < 4096; ++i)
        ASSERT_EQ(b[i], 0.0F) << i;
}

TEST(ProcessingHostScratch, bearsABlockSizeThatIsNone) {
    QMShellPlugInProcessingHost host;
    host.setBlockSize(-5);
    EXPECT_EQ(host.scratchBufferA(), host.scratchBufferA());
    EXPECT_NE(host.scratchBufferA(), nullptr);
}
