// SPDX-License-Identifier: GPL-3.0-or-later
//
// The meter's loop.

#include "brolt/signal/OutputMeter.h"

#include "brolt/signal/SharedWord.h"

#include <cmath>

void OutputMeter::follow(const float* samples, int32_t frames) noexcept {
    const float envelopeStep = 1.0F - envelopeCoefficient;
    const float meanSquarePole = meanSquareCoefficient;
    const float meanSquareStep = 1.0F - meanSquareCoefficient;
    const float decay = peakDecay;

    float amplitude = envelope;
    float power = meanSquare;
    float held = peak;

    for (int32_t i = 0; i < frames; ++i) {
        const float sample = samples[i];
        const float absolute = std::fabs(sample);

        const float decayed = decay * held;
        held = absolute > decayed ? absolute : decayed;
        power = meanSquarePole * power + meanSquareStep * (sample * sample);
        amplitude += (absolute - amplitude) * envelopeStep;
    }

    envelope = amplitude;
    meanSquare = power;
    peak = held;
}

void OutputMeter::clear() noexcept {
    storeShared(envelope, 0.0F);
    storeShared(meanSquare, 0.0F);
    storeShared(peak, 0.0F);
}
