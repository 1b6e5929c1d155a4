// SPDX-License-Identifier: GPL-3.0-or-later
//
// The follower behind both envelopes: the loudness of the tones and the sweep of their pitch.
//
// It is a one-pole follower with separate rates up and down and a run counter that works as a
// hysteresis: after many samples in one direction the first samples against it are ignored, so a
// single spike, or the zero crossings of a low tone, do not turn the envelope round.

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// Part of the processor's memory image.
struct EnvelopeDetector {
    float level = 0.0F;    ///< never negative, 1 at full scale
    int32_t direction = 0; ///< rising samples less falling ones, within the limit between blocks

    /// Bound of `direction` between blocks, in samples (18 ms at 44.1 kHz).
    static constexpr int32_t directionLimit = 800;

    /// Follows `frames` samples of `input` (absolute values) and writes the level after each of
    /// them to `envelope`. The rates are shares of the remaining distance covered per sample, 0..1.
    /// A NaN that gets in makes the level 0, from where the detector recovers. [audio thread]
    void follow(const float* input, float* envelope, int32_t frames, float attack,
                float release) noexcept;

    /// Brings the counter back into its bounds. Belongs at the end of a host's block and nowhere
    /// else: inside a long block the counter may run past them, which is part of the sound.
    /// [audio thread]
    void clampDirection() noexcept;
};

static_assert(sizeof(EnvelopeDetector) == 8);
static_assert(std::is_standard_layout_v<EnvelopeDetector>);
static_assert(std::is_trivially_copyable_v<EnvelopeDetector>);
static_assert(offsetof(EnvelopeDetector, level) == 0);
static_assert(offsetof(EnvelopeDetector, direction) == 4);
