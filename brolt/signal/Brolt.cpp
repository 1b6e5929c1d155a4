// SPDX-License-Identifier: GPL-3.0-or-later
//
// The order of a block, and the operations on a state block between blocks.
//
// Each stage's sample depends on its own past and on the same frame of the stages before it, and on
// nothing else. A block may therefore be run in pieces, each stage carrying its values from piece
// to piece, with the same result as stage after stage over the whole block, buffers in place
// included. This keeps the scratch memory at a fixed size on the stack for blocks of any length.

#include "brolt/signal/Brolt.h"

#include "brolt/signal/ScopedFlushToZero.h"
#include "brolt/signal/SharedWord.h"
#include "brolt/signal/SmoothedGains.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int32_t pieceLength = 256;

struct alignas(16) Scratch {
    float detection[pieceLength];
    float level[pieceLength];
    float pitch[pieceLength];
    float osc1[pieceLength];
    float osc2[pieceLength];
};

template <int N>
void detectionInput(const float* const* inputs, int32_t first, float* detection, int32_t frames) {
    for (int32_t i = 0; i < frames; ++i) {
        const float left = std::fabs(inputs[0][first + i]);
        if constexpr (N == 1) {
            detection[i] = left;
        } else {
            const float right = std::fabs(inputs[1][first + i]);
            detection[i] = left > right ? left : right;
        }
    }
}

template <int N>
void loadMeterBallistics(BroltState<N>& state, const Coefficients& coefficients) {
    if (coefficients.meterVersion == state.meterVersionSeen)
        return;

    for (OutputMeter& meter : state.outputMeters) {
        meter.envelopeCoefficient = coefficients.envelopeMeterCoefficient;
        meter.meanSquareCoefficient = coefficients.meanSquareCoefficient;
        meter.peakDecay = coefficients.peakDecay;
    }
    state.meterVersionSeen = coefficients.meterVersion;
}

template <int N>
void writeSnapshot(const BroltState<N>& state, float* destination) {
    const float level = loadShared(state.levelDetector.level);
    destination[0] = loadShared(state.osc1LastSine);
    destination[1] = loadShared(state.osc2LastSine);
    destination[2] = loadShared(state.osc1Gain) == 0.0F ? 0.0F : level;
    destination[3] = loadShared(state.osc2Gain) == 0.0F ? 0.0F : level;

    float* next = destination + 4;
    for (const OutputMeter& meter : state.outputMeters) {
        *next++ = loadShared(meter.envelope);
        *next++ = loadShared(meter.meanSquare);
        *next++ = loadShared(meter.peak);
    }
}

// The counters belong to whoever reads the state from outside; only their being different counts.
template <int N>
void serveSnapshotRequest(BroltState<N>& state) {
    const int32_t request = loadShared(state.snapshotRequest);
    if (request == state.snapshotServed)
        return;

    writeSnapshot(state, state.analysisSnapshot.data());
    storeShared(state.snapshotServed, request);
}

template <int N>
void storeGains(BroltState<N>& state, const SmoothedGains& gains) {
    state.outputGain = gains.output;
    state.wetMix = gains.wet;
    storeShared(state.osc1Gain, gains.osc1);
    storeShared(state.osc2Gain, gains.osc2);
}

// Not inlined, so that no arithmetic leaves the scope in which subnormals are flushed.
template <int N>
[[gnu::noinline]] void processBlock(BroltState<N>& state, const float* const* inputs,
                                    float* const* outputs, const Coefficients& coefficients,
                                    int32_t frameCount) noexcept {
    const SmoothedGains targets{coefficients.outputGain, coefficients.wetMix, coefficients.osc1Gain,
                                coefficients.osc2Gain};
    if (state.firstBlock != 0) {
        storeGains(state, targets);
        state.firstBlock = 0;
    }
    loadMeterBallistics(state, coefficients);

    const GainSmoothing smoothing{state.smoothingPole, state.smoothingStep};
    const SmoothedGains gainsAtStart{state.outputGain, state.wetMix, state.osc1Gain,
                                     state.osc2Gain};
    SmoothedGains gains = gainsAtStart;
    EnvelopeDetector levelDetector = state.levelDetector;
    EnvelopeDetector pitchDetector = state.pitchDetector;
    SineOscillator oscillator1 = state.oscillator1;
    SineOscillator oscillator2 = state.oscillator2;
    float osc1LastSine = 0.0F;
    float osc2LastSine = 0.0F;

    Scratch scratch;
    const MixSources sources{scratch.osc1, scratch.osc2, scratch.level};

    for (int32_t first = 0, frames = 0; first < frameCount; first += frames) {
        frames = std::min(pieceLength, frameCount - first);

        detectionInput<N>(inputs, first, scratch.detection, frames);
        levelDetector.follow(scratch.detection, scratch.level, frames, coefficients.levelAttack,
                             coefficients.levelRelease);
        pitchDetector.follow(scratch.detection, scratch.pitch, frames, coefficients.pitchAttack,
                             coefficients.pitchRelease);
        osc1LastSine = oscillator1.run(scratch.pitch, scratch.osc1, frames,
                                       coefficients.osc1AttackT, coefficients.osc1SustainT);
        osc2LastSine = oscillator2.run(scratch.pitch, scratch.osc2, frames,
                                       coefficients.osc2AttackT, coefficients.osc2SustainT);

        // Every channel starts from the same gains and so sees the same course of them. All
        // channels are mixed before any is metered: two outputs may be one buffer.
        SmoothedGains reached = gains;
        for (int channel = 0; channel < N; ++channel) {
            reached = mixChannel(sources, inputs[channel] + first, outputs[channel] + first, frames,
                                 gains, targets, smoothing);
        }
        gains = reached;

        for (int channel = 0; channel < N; ++channel) {
            state.outputMeters[static_cast<std::size_t>(channel)].follow(outputs[channel] + first,
                                                                         frames);
        }
    }

    levelDetector.clampDirection();
    pitchDetector.clampDirection();

    storeGains(state, settledGains(gainsAtStart, gains, targets));
    storeShared(state.levelDetector.level, levelDetector.level);
    state.levelDetector.direction = levelDetector.direction;
    state.pitchDetector = pitchDetector;
    state.oscillator1 = oscillator1;
    state.oscillator2 = oscillator2;
    storeShared(state.osc1LastSine, osc1LastSine);
    storeShared(state.osc2LastSine, osc2LastSine);

    serveSnapshotRequest(state);
}

} // namespace

template <int N, typename Sample>
void Brolt<N, Sample>::process(State& state, const Sample* const* inputs, Sample* const* outputs,
                               const Coefficients& coefficients, int32_t frameCount) noexcept {
    const ScopedFlushToZero flushToZero;
    processBlock<N>(state, inputs, outputs, coefficients, frameCount);
}

template <int N, typename Sample>
void Brolt<N, Sample>::initialiseState(State& state) noexcept {
    state = State{};
}

template <int N, typename Sample>
void Brolt<N, Sample>::resetState(State& state) noexcept {
    resetMeters(state);
    state.firstBlock = 1;
    storeShared(state.osc1LastSine, 0.0F);
    storeShared(state.osc2LastSine, 0.0F);
    storeShared(state.levelDetector.level, 0.0F);
    state.levelDetector.direction = 0;
    state.pitchDetector = EnvelopeDetector{};
    state.oscillator1.restart();
    state.oscillator2.restart();
}

template <int N, typename Sample>
void Brolt<N, Sample>::resetMeters(State& state) noexcept {
    for (OutputMeter& meter : state.outputMeters)
        meter.clear();
}

template <int N, typename Sample>
void Brolt<N, Sample>::copySnapshot(const State& state, float* destination) noexcept {
    writeSnapshot(state, destination);
}

template class Brolt<1, float>;
template class Brolt<2, float>;
