// SPDX-License-Identifier: GPL-3.0-or-later
//
// The frames of a block in the order in which they are defined: stage after stage, sample by
// sample. This is the readable definition of the sound, and what runs wherever the faster form
// (LaneFrames.h) does not apply.

#pragma once

#include "brolt/signal/BlockChains.h"
#include "brolt/signal/Coefficients.h"

#include <cstdint>

/// Runs `frames` frames from frame `first` of the buffers on. Uses about 5 KB of stack.
/// Subnormals must be off. [audio thread]
template <int N>
void runFramesPlainly(BlockChains<N>& chains, const float* const* inputs, float* const* outputs,
                      const Coefficients& coefficients, const BlockConstants& constants,
                      int32_t first, int32_t frames) noexcept;

extern template void runFramesPlainly<1>(BlockChains<1>&, const float* const*, float* const*,
                                         const Coefficients&, const BlockConstants&, int32_t,
                                         int32_t) noexcept;
extern template void runFramesPlainly<2>(BlockChains<2>&, const float* const*, float* const*,
                                         const Coefficients&, const BlockConstants&, int32_t,
                                         int32_t) noexcept;
