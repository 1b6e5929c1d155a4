// SPDX-License-Identifier: GPL-3.0-or-later
//
// The oscillator's loop: frequency polynomial, rotation, and one Newton step towards the unit
// circle so that rounding errors do not let the amplitude drift.

#include "brolt/signal/SineOscillator.h"

#include <cmath>

float SineOscillator::run(const float* pitchEnvelope, float* output, int32_t frames, float attackT,
                          float sustainT) noexcept {
    const float sweep = attackT - sustainT;
    const float lowest = -limit;
    const float highest = limit;
    const float offset = polyOffset;
    const float scale = polyScale;
    const float target = normTarget;
    const float half = normScale;

    float sine = x;
    float cosine = y;
    float s = 0.0F;

    for (int32_t i = 0; i < frames; ++i) {
        // Two comparisons in this order send NaN to the lower limit instead of into x and y, where
        // it would stay for ever.
        const float wanted = sustainT + pitchEnvelope[i] * sweep;
        const float floored = wanted > lowest ? wanted : lowest;
        const float t = floored < highest ? floored : highest;

        s = (offset - t * t) * (scale * t);
        const float c = std::sqrt(1.0F - s * s);

        output[i] = sine;

        const float turnedSine = c * cosine + s * sine;
        const float turnedCosine = s * cosine - c * sine;

        // 1 / r near r = 1 is 1.5 - 0.5 r^2.
        const float correction =
            (target - (turnedSine * turnedSine + turnedCosine * turnedCosine)) * half;
        sine = turnedSine * correction;
        cosine = turnedCosine * correction;
    }

    x = sine;
    y = cosine;
    return s;
}

void SineOscillator::restart() noexcept {
    x = 0.0F;
    y = 1.0F;
}
