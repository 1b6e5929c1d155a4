// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/ControlTaper.h"

#include <cmath>

namespace {

double withoutNaN(double number, double otherwise) {
    return std::isnan(number) ? otherwise : number;
}

} // namespace

/// Whether the curve of the mode exists over the range, both ways.
bool ControlTaper::hasFormula() const {
    const double range = maximum - minimum;
    switch (mode) {
    case logarithmic: {
        const double ratio = maximum / minimum;
        return std::isfinite(ratio) && ratio > 0.0 && ratio != 1.0;
    }
    case stretchedLogarithmic:
    case stretchedFromZero: {
        const double base = 1.0 + factor * range;
        return factor != 0.0 && std::isfinite(base) && base > 0.0 && base != 1.0;
    }
    case power:
        return factor > 0.0 && std::isfinite(factor);
    default:
        return false;
    }
}

double ControlTaper::plainAt(double position) const {
    if (mode > power)
        return 0.0;
    const double range = maximum - minimum;
    if (!std::isfinite(range)) {
        if (std::isfinite(minimum))
            return minimum;
        return std::isfinite(maximum) ? maximum : 0.0;
    }
    if (!hasFormula())
        return withoutNaN(minimum + position * range, minimum);
    double plain = 0.0;
    switch (mode) {
    case logarithmic:
        plain = minimum * std::pow(maximum / minimum, position);
        break;
    case stretchedLogarithmic:
        plain = minimum + (std::pow(1.0 + factor * range, position) - 1.0) / factor;
        break;
    case stretchedFromZero:
        plain = (std::pow(1.0 + factor * range, position) + minimum - 1.0) / factor;
        break;
    default:
        plain = minimum + std::pow(position, 1.0 / factor) * range;
        break;
    }
    return withoutNaN(plain, minimum);
}

double ControlTaper::positionOf(double plain) const {
    const double range = maximum - minimum;
    if (mode > power || !std::isfinite(range) || range == 0.0)
        return 0.0;
    double position = (plain - minimum) / range;
    if (hasFormula()) {
        if (mode == logarithmic)
            position = std::log(plain / minimum) / std::log(maximum / minimum);
        else if (mode == power)
            position = std::pow(position, factor);
        else
            position = std::log(1.0 + factor * (plain - minimum)) / std::log(1.0 + factor * range);
    }
    return withoutNaN(position, 0.0);
}
