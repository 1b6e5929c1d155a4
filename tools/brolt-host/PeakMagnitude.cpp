// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PeakMagnitude.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

std::int32_t magnitudeBits(float sample) {
    constexpr std::int32_t withoutSign = 0x7fffffff;
    return std::bit_cast<std::int32_t>(sample) & withoutSign;
}

} // namespace

void PeakMagnitude::note(const float* samples, std::size_t count) {
    // Several at once: one maximum after the other would wait for itself.
    constexpr std::size_t lanes = 8;
    std::array<std::int32_t, lanes> peaks{};
    const std::size_t whole = count - count % lanes;
    for (std::size_t i = 0; i < whole; i += lanes) {
        for (std::size_t lane = 0; lane < lanes; ++lane)
            peaks[lane] = std::max(peaks[lane], magnitudeBits(samples[i + lane]));
    }
    for (const std::int32_t peak : peaks)
        highest = std::max(highest, peak);
    for (std::size_t i = whole; i < count; ++i)
        highest = std::max(highest, magnitudeBits(samples[i]));
}

float PeakMagnitude::value() const {
    return std::bit_cast<float>(highest);
}
