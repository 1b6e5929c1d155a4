// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/PresetComparison.h"

#include <algorithm>
#include <cmath>

namespace {

bool valuesAreEqual(double a, double b) {
    constexpr double relativeTolerance = 1e-5;
    if (a == b)
        return true;
    const double scale = std::max(std::fabs(a) + std::fabs(b), 1.0);
    return scale * relativeTolerance > std::fabs(a - b);
}

} // namespace

bool presetsAreEqual(const QMGenericPreset& first, const QMGenericPreset& second,
                     const std::set<FourCharCode>& ignored) {
    if (first.valuesTag != second.valuesTag)
        return false;
    return std::all_of(first.values.begin(), first.values.end(), [&](const auto& entry) {
        const auto other = second.values.find(entry.first);
        return ignored.contains(entry.first) || other == second.values.end() ||
               valuesAreEqual(entry.second, other->second);
    });
}
