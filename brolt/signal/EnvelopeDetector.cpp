// SPDX-License-Identifier: GPL-3.0-or-later
//
// The detector's loop. It selects instead of branching: which way the input goes is as good as
// random, and a mispredicted branch costs more than the whole sample.

#include "brolt/signal/EnvelopeDetector.h"

#include <algorithm>

void EnvelopeDetector::follow(const float* input, float* envelope, int32_t frames, float attack,
                              float release) noexcept {
    float follower = level;
    int32_t run = direction;

    for (int32_t i = 0; i < frames; ++i) {
        const float distance = input[i] - follower;
        const bool rising = distance > 0.0F;
        run += rising ? 1 : -1;

        // Written as a comparison so that NaN becomes 0.
        const float moved = follower + (rising ? attack : release) * distance;
        const float floored = moved > 0.0F ? moved : 0.0F;

        const bool follows = rising == (run > 0);
        follower = follows ? floored : follower;
        envelope[i] = follower;
    }

    level = follower;
    direction = run;
}

void EnvelopeDetector::clampDirection() noexcept {
    direction = std::clamp(direction, -directionLimit, directionLimit);
}
