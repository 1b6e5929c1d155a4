// SPDX-License-Identifier: GPL-3.0-or-later
// Where on a meter's length a level is. Meters and the scales beside them share one of these, which
// is why they line up. [any thread]
#pragma once

enum class MeterMappingMode {
    decibel,     ///< bounds are 20 log10 of the level; curve bends what is between them
    compressed,  ///< curve is the slope at silence; with 9 full scale is the full length
    logarithmic, ///< bounds are levels
};

struct MeterMapping {
    MeterMappingMode mode = MeterMappingMode::compressed;
    double minimum = 0.001;
    double maximum = 2.0;
    double curve = 9.0;

    /// 0 to 1, from the end where silence is. Levels are squared ones; a NaN is silence.
    [[nodiscard]] double fractionOf(double level) const;
};
