// SPDX-License-Identifier: GPL-3.0-or-later
//
// Both envelope detectors of a frame at once: the level detector in lane 0, the pitch detector in
// lane 1. The upper lanes idle.
//
// The plain detector moves its counter by the sample and then decides whether to follow it. Here
// both decisions are made from the counter before it: a rising sample is followed when the counter
// will have become positive, a falling one when it will have become zero or less. The rates in
// force (zero where a move is not followed) are then ready before the sample is, and the way from
// one level to the next is short. A level that is held has exactly zero added. lanesApply keeps out
// what would make a difference: infinities and NaN (which zero would not silence), negative zeros
// and subnormals. A level cannot become negative then, since no rate is above 1.

#pragma once

#include "brolt/signal/EnvelopeDetector.h"
#include "brolt/signal/lanes/Lanes.h"

namespace lanes {

class DetectorLanes {
public:
    BROLT_ALWAYS_INLINE DetectorLanes(const EnvelopeDetector& levelDetector,
                                      const EnvelopeDetector& pitchDetector, Floats attackRates,
                                      Floats releaseRates)
        : levels(_mm_setr_ps(levelDetector.level, pitchDetector.level, 0.0F, 0.0F))
        , directions(_mm_setr_epi32(levelDetector.direction, pitchDetector.direction, 0, 0))
        , attack(attackRates)
        , release(releaseRates) {}

    /// Follows one sample, which is in every lane, and answers the levels.
    BROLT_ALWAYS_INLINE Floats follow(Floats sample) {
        const Floats zero = _mm_setzero_ps();
        const Floats upRate =
            _mm_and_ps(attack, _mm_castsi128_ps(_mm_cmpgt_epi32(directions, allIntegers(-1))));
        const Floats downRate =
            _mm_and_ps(release, _mm_castsi128_ps(_mm_cmpgt_epi32(allIntegers(2), directions)));

        const Floats distance = _mm_sub_ps(sample, levels);
        const Floats up = _mm_mul_ps(upRate, _mm_max_ps(distance, zero));
        const Floats down = _mm_mul_ps(downRate, _mm_min_ps(distance, zero));
        levels = _mm_add_ps(levels, _mm_or_ps(up, down));

        // All bits set is -1, and none set with the lowest bit added is +1.
        const Integers falls = _mm_castps_si128(_mm_cmple_ps(distance, zero));
        directions = _mm_add_epi32(directions, _mm_or_si128(falls, allIntegers(1)));
        return levels;
    }

    BROLT_ALWAYS_INLINE void store(EnvelopeDetector& levelDetector,
                                   EnvelopeDetector& pitchDetector) const {
        const Array level(levels);
        alignas(16) int direction[count];
        _mm_store_si128(reinterpret_cast<Integers*>(direction), directions);
        levelDetector.level = level.lane[0];
        levelDetector.direction = direction[0];
        pitchDetector.level = level.lane[1];
        pitchDetector.direction = direction[1];
    }

private:
    Floats levels;
    Integers directions;
    Floats attack;
    Floats release;
};

} // namespace lanes
