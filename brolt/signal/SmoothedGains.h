// SPDX-License-Identifier: GPL-3.0-or-later
//
// The four gains of the mix, and the loop that applies them while they move to their targets.

#pragma once

#include <cstdint>

/// Either four values in force, or the four targets they move to. All linear.
struct SmoothedGains {
    float output;
    float wet;
    float osc1;
    float osc2;
};

/// The one-pole smoother's constants: gain = pole * gain + step * target, once a sample.
struct GainSmoothing {
    float pole;
    float step;
};

/// What every channel of a block shares.
struct MixSources {
    const float* osc1;
    const float* osc2;
    const float* level; ///< envelope of the tones
};

/// Blends tones and dry input of one channel for `frames` samples and answers the gains reached.
/// Each sample uses the gains before their step. `input` and `output` may be the same buffer.
/// [audio thread]
SmoothedGains mixChannel(const MixSources& sources, const float* input, float* output,
                         int32_t frames, SmoothedGains gains, const SmoothedGains& targets,
                         const GainSmoothing& smoothing) noexcept;

/// What a gain is stored as at the end of a block: its target when the whole block did not move it
/// any more, else the value reached. A smoother in single precision comes to rest a little off its
/// target; only this makes them equal. [audio thread]
SmoothedGains settledGains(const SmoothedGains& atStart, const SmoothedGains& reached,
                           const SmoothedGains& targets) noexcept;
