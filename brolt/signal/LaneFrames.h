// SPDX-License-Identifier: GPL-3.0-or-later
//
// The frames of a block, fast: the same bits as PlainFrames.h in a seventh of the time.
//
// The plain order runs one chain after the other, and each waits for its own last result. Here
// groups of four frames go through five stages (detectors, frequency polynomial, rotation, mix,
// meters), each a group behind the one before, so that in every turn of the loop the chains of
// different groups run side by side and the longest of them, the rotation, hides the rest.

#pragma once

#include "brolt/signal/BlockChains.h"
#include "brolt/signal/Coefficients.h"

#include <cstdint>

/// Fewer frames than this are not worth filling the stages for.
constexpr int32_t fewestLaneFrames = 16;

/// Whether the fast form gives the plain one's bits for these frames: chains, record and samples
/// are in the range in which its rearrangements are exact (no infinite, NaN or huge number;
/// subnormal samples are fine), and the outputs are different buffers. [audio thread]
template <int N>
bool lanesApply(const BlockChains<N>& chains, const Coefficients& coefficients,
                const float* const* inputs, const float* const* outputs, int32_t frames) noexcept;

/// Runs the block's first frames, as many as it can in groups of four, and answers how many that
/// were. `frameCount` is at least fewestLaneFrames. Subnormals must be off. [audio thread]
template <int N>
int32_t runFramesInLanes(BlockChains<N>& chains, const float* const* inputs, float* const* outputs,
                         const Coefficients& coefficients, const BlockConstants& constants,
                         int32_t frameCount) noexcept;

extern template bool lanesApply<1>(const BlockChains<1>&, const Coefficients&, const float* const*,
                                   const float* const*, int32_t) noexcept;
extern template bool lanesApply<2>(const BlockChains<2>&, const Coefficients&, const float* const*,
                                   const float* const*, int32_t) noexcept;
extern template int32_t runFramesInLanes<1>(BlockChains<1>&, const float* const*, float* const*,
                                            const Coefficients&, const BlockConstants&,
                                            int32_t) noexcept;
extern template int32_t runFramesInLanes<2>(BlockChains<2>&, const float* const*, float* const*,
                                            const Coefficients&, const BlockConstants&,
                                            int32_t) noexcept;
