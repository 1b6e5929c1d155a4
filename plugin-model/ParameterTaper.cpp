// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/ParameterTaper.h"

#include "plugin-model/NoxPlugInParameter.h"

#include <algorithm>
#include <cmath>

namespace QM {
namespace {

constexpr double stretchFactor = 1000.0;

bool isLogarithmic(std::int32_t taper) {
    return taper == NoxTaper::logarithmic || taper == NoxTaper::stretchedLogarithmic;
}

double stretchOf(std::int32_t taper) {
    return taper == NoxTaper::stretchedLogarithmic ? stretchFactor : 1.0;
}

} // namespace

double plainToNormalised(const NoxPlugInParameter& parameter, double plain) {
    const double offset = std::max(parameter.minimum, plain) - parameter.minimum;
    const double range = parameter.maximum - parameter.minimum;
    double normalised = 0.0;
    if (isLogarithmic(parameter.taper)) {
        const double k = stretchOf(parameter.taper);
        normalised = std::log(offset * k + 1.0) / std::log(range * k + 1.0);
    } else {
        normalised = offset / range;
    }
    return std::max(0.0, normalised);
}

double normalisedToPlain(const NoxPlugInParameter& parameter, double normalised) {
    const double range = parameter.maximum - parameter.minimum;
    if (isLogarithmic(parameter.taper)) {
        const double k = stretchOf(parameter.taper);
        return (std::pow(range * k + 1.0, normalised) - 1.0) / k + parameter.minimum;
    }
    double plain = range * normalised + parameter.minimum;
    if (parameter.step > 0.0)
        plain = std::round(plain / parameter.step) * parameter.step;
    if (parameter.taper == NoxTaper::stepped)
        plain = std::round(plain);
    return plain;
}

} // namespace QM
