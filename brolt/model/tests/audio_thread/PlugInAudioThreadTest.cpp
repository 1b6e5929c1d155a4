// SPDX-License-Identifier: GPL-3.0-or-later
// Both processing entries under the allocator and lock detector, and without a single system call.
#include "brolt/model/QMBrolt_PlugIn.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "tests/support/AudioThreadGuard.h"
#include "tests/support/SystemCallTrap.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr std::array<std::size_t, 8> blockSizes{0, 1, 16, 63, 64, 512, 1000, 4096};

/// An instance of either type with everything both entries need, made before the watch begins.
class WatchedInstance {
public:
    explicit WatchedInstance(std::int32_t typeIndex)
        : plugIn(*group.typeOfIndex(typeIndex), nullptr, nullptr)
        , channels(static_cast<std::size_t>(typeIndex) + 1)
        , input(channels, std::vector<float>(4096))
        , output(channels, std::vector<float>(4096))
        , memory(256) {
        for (std::size_t c = 0; c < channels; ++c) {
            // Loud, then the quiet tail in which numbers become subnormal.
            for (std::size_t i = 0; i < input[c].size(); ++i)
                input[c][i] = i < 256 ? 0.9F : 1e-38F;
            inputs.push_back(input[c].data());
            outputs.push_back(output[c].data());
        }
        plugIn.createProcessingState();
        plugIn.initialiseStateBuffer(memory.data(), memory.size());
        PacketList packets;
        plugIn.generatePackets(packets);
        std::memcpy(&record, packets.at(0)->data, sizeof record);
        for (int i = 0; i < 3; ++i)
            plugIn.pushCoefficients(*packets.at(0));
    }

    void process(std::size_t frames) {
        const NoxProcessBlock in{static_cast<std::int64_t>(frames),
                                 static_cast<std::int32_t>(channels), 0, inputs.data()};
        const NoxProcessBlock out{static_cast<std::int64_t>(frames),
                                  static_cast<std::int32_t>(channels), 0, outputs.data()};
        plugIn.process(in, out);
    }

    void processWithMeters(std::size_t frames) {
        const auto count = static_cast<std::int32_t>(frames);
        float* meters = peaks.data();
        NoxHostManagedBlock block{};
        block.inputs = inputs.data();
        block.outputs = outputs.data();
        block.frameCount = &count;
        block.coefficients = &record;
        block.state = memory.data();
        block.meterOutput = &meters;
        plugIn.processWithMeters(block);
    }

    void runAll() {
        for (int round = 0; round < 4; ++round) {
            for (const std::size_t frames : blockSizes) {
                process(frames);
                processWithMeters(frames);
            }
        }
    }

    [[nodiscard]] float peak() const { return peaks[0]; }

private:
    QMBrolt_PlugInTypeGroup group{nullptr};
    QMBrolt_PlugIn plugIn;
    std::size_t channels;
    std::vector<std::vector<float>> input;
    std::vector<std::vector<float>> output;
    std::vector<float*> inputs;
    std::vector<float*> outputs;
    std::vector<std::byte> memory;
    Coefficients record;
    std::array<float, 4> peaks{};
};

class PlugInAudioThread : public ::testing::TestWithParam<std::int32_t> {};

INSTANTIATE_TEST_SUITE_P(BothTypes, PlugInAudioThread, ::testing::Values(0, 1),
                         [](const ::testing::TestParamInfo<std::int32_t>& type) {
                             return std::string(type.param == 0 ? "mono" : "stereo");
                         });

} // namespace

TEST_P(PlugInAudioThread, processingTakesNoMemoryAndNoLock) {
    WatchedInstance instance(GetParam());
    const AudioThreadReport report = watchAudioThread([&] { instance.runAll(); });
    EXPECT_EQ(report.violations, 0) << report.first;
    EXPECT_GT(instance.peak(), 0.0F); // it did run
}

TEST_P(PlugInAudioThread, processingWithoutAStateTakesNoMemoryAndNoLock) {
    QMBrolt_PlugInTypeGroup group(nullptr);
    QMBrolt_PlugIn plugIn(*group.typeOfIndex(GetParam()), nullptr, nullptr);
    const NoxProcessBlock nothing{64, 0, 0, nullptr};
    const NoxHostManagedBlock managed{};
    const AudioThreadReport report = watchAudioThread([&] {
        plugIn.process(nothing, nothing);
        plugIn.processWithMeters(managed);
    });
    EXPECT_EQ(report.violations, 0) << report.first;
}

TEST_P(PlugInAudioThread, processingMakesNoSystemCall) {
    WatchedInstance instance(GetParam());
    instance.runAll(); // what is bound on first use is bound now
    const SystemCallReport report = runWithoutSystemCalls([&] { instance.runAll(); });
    if (!report.available)
        GTEST_SKIP() << "the kernel does not let this process install a system call filter";
    EXPECT_TRUE(report.finished) << "system call " << report.systemCall << ", signal "
                                 << report.signal;
}

TEST_P(PlugInAudioThread, aPlantedAllocationIsSeen) {
    WatchedInstance instance(GetParam());
    const AudioThreadReport report = watchAudioThread([&] {
        instance.process(64);
        float* volatile planted = new float[64]; // volatile, or the compiler leaves both out
        delete[] planted;
        instance.process(64);
    });
    EXPECT_GE(report.violations, 2); // taken and given back
}
