// SPDX-License-Identifier: GPL-3.0-or-later
// The product in an adapter's hands, without an interface around it: made anew for each layout,
// its settings carried across, brought to rest.
#include "QMShell/hosting/HostedInstance.h"

#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/snapshots/IQMParameterSnapshots.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr std::int32_t bypass = 0;
constexpr std::int32_t attackFrequency = 1;
constexpr std::int32_t outputGain = 14;
constexpr double rate = 44100.0;

class HostedBrolt : public ::testing::Test {
protected:
    /// Channels of a block of a loud tone; answers what was written.
    std::int32_t process(std::int32_t channels) {
        for (std::size_t c = 0; c < samples.size(); ++c) {
            for (std::size_t i = 0; i < frames; ++i)
                samples[c][i] = static_cast<float>(0.9 * std::sin(0.05 * static_cast<double>(i)));
        }
        const NoxProcessBlock in{frames, channels, 0, inputs.data()};
        const NoxProcessBlock out{frames, channels, 0, outputs.data()};
        return hosted.process(in, out);
    }

    static constexpr std::size_t frames = 256;

    QMShellPlugInProcessingHost host;
    QMBrolt_PlugInTypeGroup group{nullptr};
    HostedInstance hosted{host, group};
    std::array<std::array<float, frames>, 2> samples{};
    std::array<std::array<float, frames>, 2> written{};
    std::array<float*, 2> inputs{samples[0].data(), samples[1].data()};
    std::array<float*, 2> outputs{written[0].data(), written[1].data()};
};

TEST_F(HostedBrolt, isNotThereBeforeTheFirstLayout) {
    EXPECT_EQ(hosted.get(), nullptr);
    EXPECT_EQ(process(2), 0);
    hosted.activate(rate);
    hosted.reset(rate);
    EXPECT_FALSE(hosted.resetIfStopped(rate, 512));
}

TEST_F(HostedBrolt, isMadeForOneOrTwoChannelsAndForNoOtherNumber) {
    EXPECT_TRUE(hosted.matchChannels(1));
    EXPECT_EQ(hosted.get()->outputCount(), 1);
    EXPECT_FALSE(hosted.matchChannels(1));
    EXPECT_TRUE(hosted.matchChannels(2));
    EXPECT_EQ(hosted.get()->outputCount(), 2);
    for (const std::int32_t channels : {-1, 0, 3, 6}) {
        EXPECT_FALSE(hosted.matchChannels(channels)) << channels;
        EXPECT_EQ(hosted.get()->outputCount(), 2);
    }
}

TEST_F(HostedBrolt, keepsValuesSnapshotsAndBypassAcrossLayouts) {
    hosted.matchChannels(1);
    hosted.get()->setParameterValue(attackFrequency, 123.5);
    hosted.get()->selectSnapshot(1, QM::SnapshotMode::recallOrStore);
    hosted.get()->setParameterValue(attackFrequency, 77.25);
    hosted.get()->setParameterValue(bypass, 1.0);
    hosted.matchChannels(2);
    EXPECT_EQ(hosted.get()->parameterValue(attackFrequency), 77.25);
    EXPECT_EQ(hosted.get()->parameterValue(bypass), 1.0);
    EXPECT_EQ(hosted.get()->activeSnapshot(), 1);
    hosted.matchChannels(1);
    EXPECT_EQ(hosted.get()->parameterValue(attackFrequency), 77.25);
    EXPECT_EQ(hosted.get()->parameterValue(bypass), 1.0);
}

TEST_F(HostedBrolt, offersNothingToUndoAfterAChangeOfLayout) {
    hosted.matchChannels(1);
    hosted.get()->setParameterValue(outputGain, 3.0);
    hosted.matchChannels(2);
    EXPECT_FALSE(hosted.get()->canUndo());
    EXPECT_FALSE(hosted.get()->canRedo());
}

TEST_F(HostedBrolt, runsABlockOnlyWhereThereAreChannelsEnough) {
    hosted.matchChannels(2);
    hosted.activate(rate);
    EXPECT_EQ(process(2), 2);
    EXPECT_EQ(process(1), 0);
    hosted.matchChannels(1);
    EXPECT_EQ(process(2), 1);
    hosted.drop();
    EXPECT_EQ(process(2), 0);
    EXPECT_EQ(hosted.get(), nullptr);
}

TEST_F(HostedBrolt, soundsFromTheFirstBlockWithWhatWasSetBefore) {
    hosted.matchChannels(1);
    hosted.get()->setParameterValue(bypass, 1.0);
    hosted.activate(rate);
    ASSERT_EQ(process(1), 1);
    EXPECT_EQ(written[0], samples[0]); // bypassed: what goes in comes out
}

TEST_F(HostedBrolt, isLeftAloneAsLongAsItMayStillBeProcessed) {
    hosted.matchChannels(2);
    hosted.activate(rate);
    EXPECT_FALSE(hosted.resetIfStopped(rate, 512)); // nothing was processed
    process(2);
    // An hour of blocks: not over yet.
    EXPECT_FALSE(hosted.resetIfStopped(1.0, 1800));
}

TEST_F(HostedBrolt, isResetOnceAfterTheHostHasStopped) {
    hosted.matchChannels(2);
    hosted.activate(rate);
    process(2);
    const auto limit = std::chrono::steady_clock::now() + 20s;
    bool wasReset = false;
    const auto begin = std::chrono::steady_clock::now();
    while (!wasReset && std::chrono::steady_clock::now() < limit) {
        wasReset = hosted.resetIfStopped(rate, 512);
        std::this_thread::yield();
    }
    EXPECT_TRUE(wasReset);
    EXPECT_GT(std::chrono::steady_clock::now() - begin, 99ms);
    EXPECT_FALSE(hosted.resetIfStopped(rate, 512));
}

} // namespace
