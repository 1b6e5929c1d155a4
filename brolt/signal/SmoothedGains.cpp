// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mix.

#include "brolt/signal/SmoothedGains.h"

SmoothedGains mixChannel(const MixSources& sources, const float* input, float* output,
                         int32_t frames, SmoothedGains gains, const SmoothedGains& targets,
                         const GainSmoothing& smoothing) noexcept {
    const float pole = smoothing.pole;
    const SmoothedGains steps{smoothing.step * targets.output, smoothing.step * targets.wet,
                              smoothing.step * targets.osc1, smoothing.step * targets.osc2};
    const float* const osc1 = sources.osc1;
    const float* const osc2 = sources.osc2;
    const float* const level = sources.level;

    for (int32_t i = 0; i < frames; ++i) {
        const float tones = gains.osc2 * osc2[i] + gains.osc1 * osc1[i];
        const float wet = tones * gains.wet * level[i];
        const float dry = (1.0F - gains.wet) * input[i];
        output[i] = (wet + dry) * gains.output;

        gains.output = pole * gains.output + steps.output;
        gains.wet = pole * gains.wet + steps.wet;
        gains.osc1 = pole * gains.osc1 + steps.osc1;
        gains.osc2 = pole * gains.osc2 + steps.osc2;
    }

    return gains;
}

SmoothedGains settledGains(const SmoothedGains& atStart, const SmoothedGains& reached,
                           const SmoothedGains& targets) noexcept {
    const auto settle = [](float start, float end, float target) {
        return start == end ? target : end;
    };
    return {settle(atStart.output, reached.output, targets.output),
            settle(atStart.wet, reached.wet, targets.wet),
            settle(atStart.osc1, reached.osc1, targets.osc1),
            settle(atStart.osc2, reached.osc2, targets.osc2)};
}
