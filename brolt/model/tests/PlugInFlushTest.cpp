// SPDX-License-Identifier: GPL-3.0-or-later
// The road of a parameter change to the processor, on a host that runs the instance in process.
#include "brolt/model/tests/PlugInTestKit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A host of any architecture that notes what is sent through it.
class SendingHost : public StubProcessingHost {
public:
    explicit SendingHost(NoxRuntimeArchitecture hostArchitecture)
        : architecture(hostArchitecture) {}

    [[nodiscard]] NoxRuntimeArchitecture runtimeArchitecture() const override {
        return architecture;
    }

    NoxResult sendCoefficients(std::uint32_t word, INoxPlugIn&, std::uint64_t remoteID,
                               std::uint32_t wordCount, const void* words) override {
        EXPECT_EQ(word, 0u);
        EXPECT_EQ(remoteID, 5u);
        EXPECT_EQ(wordCount * sizeof(std::uint32_t), sizeof(Coefficients));
        Coefficients record;
        std::memcpy(&record, words, sizeof record);
        records.push_back(record);
        return 0;
    }

    NoxResult sendMessage(std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t,
                          const void*) override {
        ADD_FAILURE() << "this product sends no message";
        return 0;
    }

    std::vector<Coefficients> records;

private:
    NoxRuntimeArchitecture architecture;
};

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
    SendingHost deaf(NoxArchitecture::nativeUndelivered);
    test.plugIn.createProcessingState();
    test.plugIn.setProcessingHost(&deaf);
    test.set("wetd", 50.0);
    EXPECT_EQ(nextUsed().meterVersion, -1);
    EXPECT_TRUE(deaf.records.empty());
    test.plugIn.setProcessingHost(nullptr);
}

TEST_F(PlugInFlush, aRemoteHostGetsEveryRecordInWordsAndTheQueueNone) {
    SendingHost remote(NoxArchitecture::dsp3d);
    test.plugIn.createProcessingState();
    test.plugIn.setRemoteInstanceID(5);
    test.plugIn.setProcessingHost(&remote);
    test.set("wetd", 50.0);
    ASSERT_EQ(remote.records.size(), 2u);
    EXPECT_EQ(remote.records[0].meterVersion, 2);
    EXPECT_EQ(remote.records[0].wetMix, 1.0F);
    EXPECT_EQ(remote.records[1].meterVersion, 3);
    EXPECT_EQ(remote.records[1].wetMix, 0.5F);
    EXPECT_EQ(nextUsed().meterVersion, -1);
    test.plugIn.setProcessingHost(nullptr);
}

TEST_F(PlugInFlush, aSharcHostGetsNothingFromThisProduct) {
    SendingHost remote(NoxArchitecture::sharc);
    test.plugIn.setProcessingHost(&remote);
    test.set("wetd", 50.0);
    EXPECT_TRUE(remote.records.empty());
    test.plugIn.setProcessingHost(nullptr);
}
