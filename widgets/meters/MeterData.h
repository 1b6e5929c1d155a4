// SPDX-License-Identifier: GPL-3.0-or-later
// What a meter draws. Every level here is squared: 1 is full scale, and 10 dB down is a tenth.
// [message thread]
#pragma once

#include <cstdint>

struct MeterData {
    float hold[2] = {};  ///< what the source holds itself, of peak and mean; 0 where it does not
    float level[2] = {}; ///< peak, mean square
    float envelope = 0.0f;
    std::int32_t overloads[2] = {}; ///< that the source counts, that the widget has counted
    float weighting = 0.0f;
};
