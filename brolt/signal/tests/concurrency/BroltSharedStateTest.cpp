// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the message thread may do to a state block while the audio thread runs it.

#include "brolt/signal/Brolt.h"
#include "brolt/signal/CoefficientComputation.h"

#include <atomic>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

TEST(BroltSharedState, snapshotsAndMeterResetsWhileABlockRunsSeeWholeValues) {
    constexpr int32_t blockLength = 64;
    constexpr int visits = 5000;
    constexpr float amplitude = 0.5F;
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
    Coefficients record;
    computeCoefficients(record, parameters);
    record.meterVersion = 2;

    BroltState<2> state;
    Brolt<2, float>::initialiseState(state);
    std::atomic<bool> stop{false};
    std::atomic<int> blocks{0};

    std::thread audio([&] {
        std::vector<float> left(blockLength);
        std::vector<float> right(blockLength);
        const float* const inputs[] = {left.data(), right.data()};
        float* const outputs[] = {left.data(), right.data()};
        while (!stop.load(std::memory_order_relaxed)) {
            for (std::size_t i = 0; i < left.size(); ++i) {
                left[i] = (i & 16U) != 0 ? amplitude : -amplitude;
                right[i] = -left[i];
            }
            Brolt<2, float>::process(state, inputs, outputs, record, blockLength);
            blocks.fetch_add(1, std::memory_order_relaxed);
        }
    });

    while (blocks.load(std::memory_order_relaxed) < 10)
        std::this_thread::yield();
    int outOfBounds = 0;
    for (int visit = 0; visit < visits; ++visit) {
        float snapshot[BroltState<2>::snapshotLength];
        Brolt<2, float>::copySnapshot(state, snapshot);
        for (const float value : snapshot)
            outOfBounds += std::fabs(value) <= 2.0F ? 0 : 1;
        if (visit % 16 == 0)
            Brolt<2, float>::resetMeters(state);
        if (visit % 64 == 0)
            std::this_thread::yield();
    }
    // Blocks that began after the last reset.
    const int blocksAtReset = blocks.load(std::memory_order_relaxed);
    while (blocks.load(std::memory_order_relaxed) < blocksAtReset + 10)
        std::this_thread::yield();
    stop.store(true, std::memory_order_relaxed);
    audio.join();
    EXPECT_EQ(outOfBounds, 0);
    EXPECT_GT(state.outputMeters[0].peak, 0.0F);
}
