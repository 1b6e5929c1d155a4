// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/SampleEncoding.h"

#include <cmath>

std::int64_t toWholeNumbers(const float* samples, std::int32_t* words, std::size_t count,
                            int bits) {
    constexpr int wordBits = 32;
    const double fullScale = std::ldexp(1.0, bits - 1);
    const double step = std::ldexp(1.0, wordBits - bits);
    std::int64_t beyond = 0;
    for (std::size_t i = 0; i < count; ++i) {
        double number = std::nearbyint(static_cast<double>(samples[i]) * fullScale);
        if (number >= fullScale) {
            number = fullScale - 1.0;
            ++beyond;
        } else if (number < -fullScale) {
            number = -fullScale;
            ++beyond;
        } else if (std::isnan(number)) {
            number = 0.0;
            ++beyond;
        }
        words[i] = static_cast<std::int32_t>(number * step);
    }
    return beyond;
}
