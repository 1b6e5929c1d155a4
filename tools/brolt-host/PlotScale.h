// SPDX-License-Identifier: GPL-3.0-or-later
//
// From values to places on an axis, and where an axis has its marks.

#pragma once

#include <string>
#include <vector>

struct PlotTick {
    double value;
    std::string label; ///< empty for a line without a number
};

/// One axis: linear or logarithmic.
struct PlotScale {
    double minimum;
    double maximum;
    bool logarithmic = false;
    std::vector<PlotTick> ticks;

    /// 0 at the minimum, 1 at the maximum; values outside stay at the ends, one that is not a
    /// number at 0. [any thread]
    [[nodiscard]] double position(double value) const;
};

/// Time from 0 to `seconds`, with about ten marks. [any thread]
PlotScale timeScale(double seconds);

/// Frequencies from at or below `lowest` to at or above `highest` (Hz); both ends are a digit times
/// a power of ten, and at least an octave apart. [any thread]
PlotScale frequencyScale(double lowest, double highest);

/// Decibels from `floor` to at or above `highest`, not below 0. [any thread]
PlotScale levelScale(double floor, double highest);
