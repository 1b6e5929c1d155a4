// SPDX-License-Identifier: GPL-3.0-or-later
// The scales that levels are read on: lists of marks, each at a level below full scale and with
// what is written beside it. Where a standard has a reference level of its own, the mark stands
// where that level is in a digital chain. [any thread]
#pragma once

#include <vector>

struct MeterMark {
    double decibels = 0.0;  ///< from full scale
    const char* label = ""; ///< empty for a line alone

    /// Squared, as meters measure: 10 ^ (dB / 10).
    [[nodiscard]] float level() const;
};

struct MeterScale {
    const char* name = "";
    std::vector<MeterMark> marks; ///< the highest first
};

/// All scales; the last one is what meters use unless told otherwise.
[[nodiscard]] const std::vector<MeterScale>& meterScales();
