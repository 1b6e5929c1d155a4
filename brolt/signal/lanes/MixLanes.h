// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mix of four frames, and the four gains that move from frame to frame, one a lane.
//
// Most of the time no gain moves: the smoother has come to rest, or was snapped to a target that it
// does not leave. Whether a further step would change any gain is asked once a block; if not, the
// gains are constants of the block.

#pragma once

#include "brolt/signal/SmoothedGains.h"
#include "brolt/signal/lanes/Lanes.h"

namespace lanes {

/// What four frames of every channel share.
struct MixedTones {
    Floats wet;
    Floats dryShare;
    Floats outputGain;
};

class GainLanes {
public:
    BROLT_ALWAYS_INLINE GainLanes(const SmoothedGains& gains, const SmoothedGains& targets,
                                  const GainSmoothing& smoothing)
        : values(load(gains))
        , pole(all(smoothing.pole))
        , steps(_mm_mul_ps(all(smoothing.step), load(targets))) {}

    [[nodiscard]] BROLT_ALWAYS_INLINE bool rest() const {
        return _mm_movemask_ps(_mm_cmpeq_ps(moved(), values)) == 0xF;
    }

    /// Answers the gains in force and moves on.
    BROLT_ALWAYS_INLINE Floats step() {
        const Floats inForce = values;
        values = moved();
        return inForce;
    }

    /// Mixes with the gains of four frames, one frame a vector.
    BROLT_ALWAYS_INLINE static MixedTones mix(Floats gains0, Floats gains1, Floats gains2,
                                              Floats gains3, Floats osc1, Floats osc2,
                                              Floats level) {
        _MM_TRANSPOSE4_PS(gains0, gains1, gains2, gains3);
        return mixTones(gains0, gains1, gains2, gains3, osc1, osc2, level);
    }

    /// Mixes with gains that rest.
    BROLT_ALWAYS_INLINE MixedTones mix(Floats osc1, Floats osc2, Floats level) const {
        return mixTones(broadcast<0>(values), broadcast<1>(values), broadcast<2>(values),
                        broadcast<3>(values), osc1, osc2, level);
    }

    BROLT_ALWAYS_INLINE void store(SmoothedGains& gains) const {
        const Array value(values);
        gains = {value.lane[0], value.lane[1], value.lane[2], value.lane[3]};
    }

private:
    BROLT_ALWAYS_INLINE static Floats load(const SmoothedGains& gains) {
        return _mm_setr_ps(gains.output, gains.wet, gains.osc1, gains.osc2);
    }

    [[nodiscard]] BROLT_ALWAYS_INLINE Floats moved() const {
        return _mm_add_ps(_mm_mul_ps(pole, values), steps);
    }

    BROLT_ALWAYS_INLINE static MixedTones mixTones(Floats outputGain, Floats wetMix,
                                                   Floats osc1Gain, Floats osc2Gain, Floats osc1,
                                                   Floats osc2, Floats level) {
        const Floats tones = _mm_add_ps(_mm_mul_ps(osc2Gain, osc2), _mm_mul_ps(osc1Gain, osc1));
        return {_mm_mul_ps(_mm_mul_ps(tones, wetMix), level), _mm_sub_ps(all(1.0F), wetMix),
                outputGain};
    }

    Floats values;
    Floats pole;
    Floats steps;
};

/// One channel's output.
BROLT_ALWAYS_INLINE Floats mixInput(const MixedTones& tones, Floats input) {
    return _mm_mul_ps(_mm_add_ps(tones.wet, _mm_mul_ps(tones.dryShare, input)), tones.outputGain);
}

} // namespace lanes
