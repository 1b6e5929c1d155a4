// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the output meters show of one channel: an envelope, a mean square and a held peak.

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// Part of the processor's memory image. The message thread reads the three values while the audio
/// thread runs, and sets them to zero when the user clicks the meter; a value from the neighbouring
/// block, or a zero that the running block writes over, is acceptable for a display.
///
/// An infinite or NaN sample stays in `envelope` and `meanSquare`, and an infinite one in `peak`,
/// until the meter is cleared: a meter that has seen such a sample keeps saying so.
struct OutputMeter {
    float envelope = 0.0F;   ///< linear amplitude
    float meanSquare = 0.0F; ///< power
    float peak = 0.0F;       ///< linear amplitude
    float envelopeCoefficient = 0.99999F;
    float meanSquareCoefficient = 0.9999F;
    float peakDecay = 0.9999F;
    int32_t meterKind = 4; ///< carried for hosts, not read here

    /// Follows `frames` output samples. On a meter of the block's own, not on the image: see
    /// BlockChains. [audio thread]
    void follow(const float* samples, int32_t frames) noexcept;

    /// Zeroes the three values and keeps the ballistics. [any thread]
    void clear() noexcept;
};

static_assert(sizeof(OutputMeter) == 28);
static_assert(std::is_standard_layout_v<OutputMeter>);
static_assert(std::is_trivially_copyable_v<OutputMeter>);
static_assert(offsetof(OutputMeter, envelope) == 0);
static_assert(offsetof(OutputMeter, meanSquare) == 4);
static_assert(offsetof(OutputMeter, peak) == 8);
static_assert(offsetof(OutputMeter, envelopeCoefficient) == 12);
static_assert(offsetof(OutputMeter, meanSquareCoefficient) == 16);
static_assert(offsetof(OutputMeter, peakDecay) == 20);
static_assert(offsetof(OutputMeter, meterKind) == 24);
