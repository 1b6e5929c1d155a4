// SPDX-License-Identifier: GPL-3.0-or-later
//
// Each stage's sample depends on its own past and on the same frame of the stages before it, and on
// nothing else. A block may therefore be run in pieces, each stage carrying its values from piece
// to piece, with the same result as stage after stage over the whole block, buffers in place
// included. This keeps the scratch memory at a fixed size on the stack for blocks of any length.

#include "brolt/signal/PlainFrames.h"

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

} // namespace

template <int N>
void runFramesPlainly(BlockChains<N>& chains, const float* const* inputs, float* const* outputs,
                      const Coefficients& coefficients, const BlockConstants& constants,
                      int32_t first, int32_t frames) noexcept {
    Scratch scratch;
    const MixSources sources{scratch.osc1, scratch.osc2, scratch.level};
    const int32_t end = first + frames;

    for (int32_t at = first, piece = 0; at < end; at += piece) {
        piece = std::min(pieceLength, end - at);

        detectionInput<N>(inputs, at, scratch.detection, piece);
        chains.levelDetector.follow(scratch.detection, scratch.level, piece,
                                    coefficients.levelAttack, coefficients.levelRelease);
        chains.pitchDetector.follow(scratch.detection, scratch.pitch, piece,
                                    coefficients.pitchAttack, coefficients.pitchRelease);
        chains.osc1LastSine =
            chains.oscillator1.run(scratch.pitch, scratch.osc1, piece, coefficients.osc1AttackT,
                                   coefficients.osc1SustainT);
        chains.osc2LastSine =
            chains.oscillator2.run(scratch.pitch, scratch.osc2, piece, coefficients.osc2AttackT,
                                   coefficients.osc2SustainT);

        // Every channel starts from the same gains and so sees the same course of them. All
        // channels are mixed before any is metered: two outputs may be one buffer.
        SmoothedGains reached = chains.gains;
        for (int channel = 0; channel < N; ++channel) {
            reached = mixChannel(sources, inputs[channel] + at, outputs[channel] + at, piece,
                                 chains.gains, constants.targets, constants.smoothing);
        }
        chains.gains = reached;

        for (int channel = 0; channel < N; ++channel) {
            chains.outputMeters[static_cast<std::size_t>(channel)].follow(outputs[channel] + at,
                                                                          piece);
        }
    }
}

template void runFramesPlainly<1>(BlockChains<1>&, const float* const*, float* const*,
                                  const Coefficients&, const BlockConstants&, int32_t,
                                  int32_t) noexcept;
template void runFramesPlainly<2>(BlockChains<2>&, const float* const*, float* const*,
                                  const Coefficients&, const BlockConstants&, int32_t,
                                  int32_t) noexcept;
