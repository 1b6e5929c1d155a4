// SPDX-License-Identifier: GPL-3.0-or-later
//
// A sine oscillator that turns a point on the unit circle by an angle that may change every sample.
//
// Its frequency is not given as an angle but as a coefficient t, because the cosine of the angle is
// then a cubic, s = t (3 - t^2) / 2, and the sine a square root: no library call is left in the
// loop. t = 1 is a standing oscillator, t = 0 a quarter of the sample rate, t = -1 half of it.

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// Part of the processor's memory image. The last five fields are constants that a host sees in the
/// image; processing reads them and never writes them.
struct SineOscillator {
    float x = 0.0F; ///< the output
    float y = 1.0F; ///< its quadrature
    float normScale = 0.5F;
    float normTarget = 3.0F;
    float polyScale = 0.5F;
    float polyOffset = 3.0F;
    float limit = 1.0F; ///< bound of |t|

    /// Writes `frames` samples to `output` while t moves between `sustainT` (pitch envelope 0) and
    /// `attackT` (pitch envelope 1); an envelope above 1 goes on past `attackT` up to the limit.
    /// Answers the s of the last sample, the cosine of its phase step, or 0 when `frames` is 0.
    /// Whatever the envelope holds, infinities and NaN included, x and y stay finite.
    /// [audio thread]
    float run(const float* pitchEnvelope, float* output, int32_t frames, float attackT,
              float sustainT) noexcept;

    /// Back to phase zero. [audio thread]
    void restart() noexcept;
};

static_assert(sizeof(SineOscillator) == 28);
static_assert(std::is_standard_layout_v<SineOscillator>);
static_assert(std::is_trivially_copyable_v<SineOscillator>);
static_assert(offsetof(SineOscillator, x) == 0);
static_assert(offsetof(SineOscillator, y) == 4);
static_assert(offsetof(SineOscillator, normScale) == 8);
static_assert(offsetof(SineOscillator, normTarget) == 12);
static_assert(offsetof(SineOscillator, polyScale) == 16);
static_assert(offsetof(SineOscillator, polyOffset) == 20);
static_assert(offsetof(SineOscillator, limit) == 24);
