// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterMapping.h"

#include <algorithm>
#include <cmath>

namespace {

double decibelFraction(const MeterMapping& mapping, double level) {
    const double decibels = 20.0 * std::log10(level);
    if (decibels <= mapping.minimum)
        return 0.0;
    if (decibels >= mapping.maximum)
        return 1.0;
    return std::pow((decibels - mapping.minimum) / (mapping.maximum - mapping.minimum),
                    mapping.curve);
}

double logarithmicFraction(const MeterMapping& mapping, double level) {
    if (level < mapping.minimum)
        return 0.0;
    if (level > mapping.maximum)
        return 1.0;
    return std::log10(level / mapping.minimum) / std::log10(mapping.maximum / mapping.minimum);
}

} // namespace

double MeterMapping::fractionOf(double level) const {
    if (!(level > 0.0))
        return 0.0;
    double fraction = 0.0;
    switch (mode) {
    case MeterMappingMode::decibel:
        fraction = decibelFraction(*this, level);
        break;
    case MeterMappingMode::compressed:
        fraction = std::log10(level * curve + 1.0);
        break;
    case MeterMappingMode::logarithmic:
        fraction = logarithmicFraction(*this, level);
        break;
    }
    return std::isnan(fraction) ? 0.0 : std::clamp(fraction, 0.0, 1.0);
}
