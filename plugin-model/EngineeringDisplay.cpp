// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/EngineeringDisplay.h"

#include "plugin-model/NoxPlugInParameter.h"
#include "plugin-model/NumberText.h"
#include "plugin-model/TextBuffer.h"

#include <cmath>

namespace QM {
namespace {

struct Scaled {
    double value;
    const char* prefix;
    bool blankBeforePrefix;
};

Scaled scaled(double value) {
    constexpr double kiloFrom = 1000.0;
    constexpr double milliUpTo = 0.001;
    constexpr double microUpTo = 1e-6;
    const double magnitude = std::fabs(value);
    if (magnitude >= kiloFrom)
        return {value / kiloFrom, "k", true};
    if (magnitude == 0.0 || magnitude > milliUpTo || std::isnan(magnitude))
        return {value, "", true};
    if (magnitude > microUpTo)
        return {value * 1e3, "m", true};
    return {value * 1e6, "µ", false};
}

} // namespace

void formatEngineering(const NoxPlugInParameter&, double value, char* buffer, std::size_t size) {
    const Scaled shown = scaled(value);
    copyText(buffer, size, (numberText(shown.value) + shown.prefix).c_str());
}

void formatEngineeringWithUnit(const NoxPlugInParameter& parameter, double value, char* buffer,
                               std::size_t size) {
    const Scaled shown = scaled(value);
    const char* gap = shown.blankBeforePrefix ? " " : "";
    copyText(buffer, size, (numberText(shown.value) + gap + shown.prefix + parameter.unit).c_str());
}

} // namespace QM
