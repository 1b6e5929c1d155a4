// SPDX-License-Identifier: GPL-3.0-or-later
// The road of a parameter change to the processor, on a host that runs the instance in process.
#include "brolt/model/tests/PlugInTestKit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class PlugInFlush : public ::testing::Test {
protected:
    InProcessHost host;
    PlugInUnderTest<2> test;

    ~PlugInFlush() override { test.plugIn.setProcessingHost(nullptr); }

    /// The record that the next block works with.
    const Coefficients& nextUsed() {
        TestBlock<2> block(8);
        test.process(block);
        return *test.plugIn.coefficientsInUse();
    }
};

} // namespace

TEST_F(PlugInFlush, attachingToTheHostFlushesTheFirstRecord) {
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&host);
    const Coefficients& used = nextUsed();
    EXPECT_EQ(used.meterVersion, 2);
    EXPECT_EQ(used.outputGain, 1.0F);
    EXPECT_EQ(used.wetMix, 1.0F);
    EXPECT_EQ(used.sampleRate, 44100.0F);
}

TEST_F(PlugInFlush, aRecordFlushedBeforeTheStateExistsIsLostUntilARefresh) {
    test.plugIn.setProcessingHost(&host);
    test.plugIn.createProcessingState();
    EXPECT_EQ(nextUsed().meterVersion, -1);
    test.plugIn.refresh(&host);
    EXPECT_EQ(nextUsed().meterVersion, 3);
}

TEST_F(PlugInFlush, everyChangeIsARecordAndABracketIsOne) {
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&host);
    EXPECT_EQ(nextUsed().meterVersion, 2);
    test.set("wetd", 50.0);
    EXPECT_EQ(nextUsed().wetMix, 0.5F);
    test.plugIn.beginAccumulate();
    test.set("wetd", 25.0);
    test.set("gain", -6.0);
    EXPECT_EQ(nextUsed().wetMix, 0.5F);
    test.plugIn.endAccumulate();
    const Coefficients& used = nextUsed();
    EXPECT_EQ(used.meterVersion, 4);
    EXPECT_EQ(used.wetMix, 0.25F);
    EXPECT_NEAR(used.outputGain, std::pow(10.0, -6.0 / 20.0), 1e-6);
}

TEST_F(PlugInFlush, bypassPassesTheInputOn) {
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&host);
    test.set("gain", 12.0);
    test.set("mbyp", 1.0);
    nextUsed();
    nextUsed();
    const Coefficients& used = nextUsed();
    EXPECT_EQ(used.outputGain, 1.0F);
    EXPECT_EQ(used.wetMix, 0.0F);
}

TEST_F(PlugInFlush, theHostsRateDoesNotChangeTheRecord) {
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&host);
    const Coefficients first = nextUsed();
    const double rate = 96000.0;
    test.plugIn.setSampleRate(&rate);
    test.plugIn.refresh(&host);
    Coefficients second = nextUsed();
    EXPECT_EQ(second.meterVersion, first.meterVersion + 1);
    second.meterVersion = first.meterVersion;
    EXPECT_EQ(bytesOf(second), bytesOf(first));
}

TEST_F(PlugInFlush, aHostThatDeliversNothingLeavesTheDefaultRecord) {
    ::testing::NiceMock<MockProcessingHost> deaf(NoxArchitecture::nativeUndelivered);
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&deaf);
    test.set("wetd", 50.0);
    EXPECT_EQ(nextUsed().meterVersion, -1);
    test.plugIn.setProcessingHost(nullptr);
}

TEST_F(PlugInFlush, aRemoteHostGetsTheRecordInWords) {
    ::testing::NiceMock<MockProcessingHost> remote(NoxArchitecture::dsp3d);
    test.plugIn.setRemoteInstanceID(5);
    EXPECT_CALL(remote, sendCoefficients(0, ::testing::Ref(test.plugIn), 5, 18, ::testing::_));
    EXPECT_CALL(remote, sendMessage).Times(0);
    test.plugIn.setProcessingHost(&remote);
    ::testing::Mock::VerifyAndClearExpectations(&remote);
    test.plugIn.setProcessingHost(nullptr);
}

TEST_F(PlugInFlush, aSharcHostGetsNothingFromThisProduct) {
    ::testing::NiceMock<MockProcessingHost> remote(NoxArchitecture::sharc);
    EXPECT_CALL(remote, sendCoefficients).Times(0);
    EXPECT_CALL(remote, sendMessage).Times(0);
    test.plugIn.setProcessingHost(&remote);
    test.set("wetd", 50.0);
    test.plugIn.setProcessingHost(nullptr);
}
