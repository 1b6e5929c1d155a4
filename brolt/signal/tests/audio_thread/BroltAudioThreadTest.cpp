// SPDX-License-Identifier: GPL-3.0-or-later
//
// The signal layer's audio-thread operations under both detectors: no allocation, no lock, no
// system call.

#include "brolt/signal/Brolt.h"
#include "brolt/signal/CoefficientComputation.h"
#include "brolt/signal/QMCoefficientQueue.h"
#include "tests/support/AudioThreadGuard.h"
#include "tests/support/SystemCallTrap.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

constexpr int32_t longestBlock = 4096;
constexpr std::array<int32_t, 10> blockLengths{0, 1, 2, 63, 64, 255, 256, 257, 512, longestBlock};

BroltParameters parametersForTheTest() {
    BroltParameters parameters;
    parameters.osc1Enable = true;
    parameters.osc2Enable = true;
    parameters.osc1AttackFrequency = 100.0F;
    parameters.osc1SustainFrequency = 60.0F;
    parameters.osc2AttackFrequency = 200.0F;
    parameters.osc2SustainFrequency = 120.0F;
    parameters.envelopeAttack = 2.0F;
    parameters.envelopeRelease = 140.0F;
    parameters.pitchAttack = 2.0F;
    parameters.pitchRelease = 140.0F;
    parameters.wetDry = 50.0F;
    return parameters;
}

/// A processor, its queue and its buffers, all allocated before the watch begins.
template <int N>
class Rig {
public:
    Rig() {
        Brolt<N, float>::initialiseState(state);
        computeCoefficients(record, parametersForTheTest());
        for (std::size_t c = 0; c < N; ++c) {
            samples[c].resize(longestBlock);
            inputs[c] = samples[c].data();
            outputs[c] = samples[c].data();
        }
    }

    /// What an audio thread does, with input of every kind.
    void runBlocks() {
        using Limits = std::numeric_limits<float>;
        for (const float value :
             {0.0F, 0.5F, -1.5F, 1e-40F, 1e30F, Limits::infinity(), Limits::quiet_NaN()}) {
            for (const int32_t frames : blockLengths) {
                for (std::vector<float>& channel : samples) {
                    for (float& sample : channel)
                        sample = value;
                }
                ++record.meterVersion;
                ++state.snapshotRequest;
                queue.push(&record);
                queue.push(&record);
                const auto* taken = static_cast<const Coefficients*>(queue.current());
                Brolt<N, float>::process(state, inputs.data(), outputs.data(), *taken, frames);
                Brolt<N, float>::copySnapshot(state, snapshot.data());
            }
            queue.discardPending();
            Brolt<N, float>::resetMeters(state);
            Brolt<N, float>::resetState(state);
        }
    }

    BroltState<N> state;

private:
    Coefficients record;
    QMCoefficientQueue<Coefficients, 5> queue;
    std::array<std::vector<float>, N> samples;
    std::array<const float*, N> inputs{};
    std::array<float*, N> outputs{};
    std::array<float, BroltState<N>::snapshotLength> snapshot{};
};

template <int N>
void expectNoViolation() {
    Rig<N> rig;
    const AudioThreadReport report = watchAudioThread([&] { rig.runBlocks(); });
    EXPECT_EQ(report.violations, 0) << "first: " << report.first;
    EXPECT_GT(rig.state.meterVersionSeen, 0);
}

template <int N>
void expectNoSystemCall() {
    Rig<N> rig;
    rig.runBlocks();
    const SystemCallReport report = runWithoutSystemCalls([&] { rig.runBlocks(); });
    if (!report.available)
        GTEST_SKIP() << "this kernel or container does not allow system call filters";
    EXPECT_TRUE(report.finished);
    EXPECT_EQ(report.systemCall, -1);
    EXPECT_EQ(report.signal, 0);
}

} // namespace

TEST(BroltAudioThread, monoAllocatesNothingAndLocksNothing) {
    expectNoViolation<1>();
}

TEST(BroltAudioThread, stereoAllocatesNothingAndLocksNothing) {
    expectNoViolation<2>();
}

TEST(BroltAudioThread, monoMakesNoSystemCall) {
    expectNoSystemCall<1>();
}

TEST(BroltAudioThread, stereoMakesNoSystemCall) {
    expectNoSystemCall<2>();
}
