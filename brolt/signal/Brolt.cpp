// SPDX-License-Identifier: GPL-3.0-or-later
//
// The order of a block around its frames, and the operations on a state block between blocks.

#include "brolt/signal/Brolt.h"

#include "brolt/signal/BlockChains.h"
#include "brolt/signal/LaneFrames.h"
#include "brolt/signal/PlainFrames.h"
#include "brolt/signal/ScopedFlushToZero.h"
#include "brolt/signal/SharedWord.h"

namespace {

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
BlockChains<N> chainsOf(const BroltState<N>& state) {
    BlockChains<N> chains;
    chains.gains = {state.outputGain, state.wetMix, state.osc1Gain, state.osc2Gain};
    chains.levelDetector = state.levelDetector;
    chains.pitchDetector = state.pitchDetector;
    chains.oscillator1 = state.oscillator1;
    chains.oscillator2 = state.oscillator2;
    for (std::size_t c = 0; c < N; ++c) {
        const OutputMeter& from = state.outputMeters[c];
        OutputMeter& to = chains.outputMeters[c];
        to.envelope = loadShared(from.envelope);
        to.meanSquare = loadShared(from.meanSquare);
        to.peak = loadShared(from.peak);
        to.envelopeCoefficient = from.envelopeCoefficient;
        to.meanSquareCoefficient = from.meanSquareCoefficient;
        to.peakDecay = from.peakDecay;
    }
    return chains;
}

template <int N>
void storeGains(BroltState<N>& state, const SmoothedGains& gains) {
    state.outputGain = gains.output;
    state.wetMix = gains.wet;
    storeShared(state.osc1Gain, gains.osc1);
    storeShared(state.osc2Gain, gains.osc2);
}

template <int N>
void storeChains(BroltState<N>& state, const BlockChains<N>& chains) {
    storeGains(state, chains.gains);
    storeShared(state.levelDetector.level, chains.levelDetector.level);
    state.levelDetector.direction = chains.levelDetector.direction;
    state.pitchDetector = chains.pitchDetector;
    state.oscillator1 = chains.oscillator1;
    state.oscillator2 = chains.oscillator2;
    storeShared(state.osc1LastSine, chains.osc1LastSine);
    storeShared(state.osc2LastSine, chains.osc2LastSine);
    for (std::size_t c = 0; c < N; ++c) {
        storeShared(state.outputMeters[c].envelope, chains.outputMeters[c].envelope);
        storeShared(state.outputMeters[c].meanSquare, chains.outputMeters[c].meanSquare);
        storeShared(state.outputMeters[c].peak, chains.outputMeters[c].peak);
    }
}

// Not inlined, so that no arithmetic leaves the scope in which subnormals are flushed.
template <int N, bool mayUseLanes>
[[gnu::noinline]] void processBlock(BroltState<N>& state, const float* const* inputs,
                                    float* const* outputs, const Coefficients& coefficients,
                                    int32_t frameCount) noexcept {
    const BlockConstants constants{{coefficients.outputGain, coefficients.wetMix,
                                    coefficients.osc1Gain, coefficients.osc2Gain},
                                   {state.smoothingPole, state.smoothingStep}};
    if (state.firstBlock != 0) {
        storeGains(state, constants.targets);
        state.firstBlock = 0;
    }
    loadMeterBallistics(state, coefficients);

    BlockChains<N> chains = chainsOf(state);
    const SmoothedGains gainsAtStart = chains.gains;
    int32_t done = 0;
    if (mayUseLanes && frameCount >= fewestLaneFrames &&
        lanesApply(chains, coefficients, inputs, outputs, frameCount))
        done = runFramesInLanes(chains, inputs, outputs, coefficients, constants, frameCount);
    if (done < frameCount)
        runFramesPlainly(chains, inputs, outputs, coefficients, constants, done, frameCount - done);

    chains.levelDetector.clampDirection();
    chains.pitchDetector.clampDirection();
    chains.gains = settledGains(gainsAtStart, chains.gains, constants.targets);
    storeChains(state, chains);

    serveSnapshotRequest(state);
}

} // namespace

template <int N, typename Sample>
void Brolt<N, Sample>::process(State& state, const Sample* const* inputs, Sample* const* outputs,
                               const Coefficients& coefficients, int32_t frameCount) noexcept {
    const ScopedFlushToZero flushToZero;
    processBlock<N, true>(state, inputs, outputs, coefficients, frameCount);
}

template <int N, typename Sample>
void Brolt<N, Sample>::processPlainly(State& state, const Sample* const* inputs,
                                      Sample* const* outputs, const Coefficients& coefficients,
                                      int32_t frameCount) noexcept {
    const ScopedFlushToZero flushToZero;
    processBlock<N, false>(state, inputs, outputs, coefficients, frameCount);
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
