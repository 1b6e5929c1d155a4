// SPDX-License-Identifier: GPL-3.0-or-later
// A small parameter table for tests of the framework. Every field that has an accessor holds
// another value in every row, so that an accessor of the wrong field or row is found out.
#pragma once

#include "plugin-model/QMParameterSet.h"

#include <array>
#include <limits>

namespace parameterTest {

constexpr std::int32_t levelIndex = 0;  ///< linear -8..8, step 0.5, without functions or names
constexpr std::int32_t modeIndex = 1;   ///< stepped 1..3 with the names Low, Mid, High
constexpr std::int32_t timeIndex = 2;   ///< logarithmic 1..100, engineering display
constexpr std::int32_t switchIndex = 3; ///< stepped 0..1 with functions of its own beside names
constexpr std::int32_t strayIndex = 4;  ///< stretched 0..10, in a group that does not exist
constexpr std::int32_t count = 5;

/// Indices that no set of this size knows.
constexpr std::array<std::int32_t, 5> outOfRange{-1, count, count + 100,
                                                 std::numeric_limits<std::int32_t>::min(),
                                                 std::numeric_limits<std::int32_t>::max()};

std::span<const NoxPlugInParameter> parameters();
std::span<const NoxParameterGroup> groups();
std::span<const NoxMeterDescriptor> meters();

/// The switch's own display functions write "<Switch VALUE>" and "<Switch VALUE x>".
void formatSwitch(const NoxPlugInParameter& parameter, double value, char* buffer,
                  std::size_t size);
void formatSwitchWithUnit(const NoxPlugInParameter& parameter, double value, char* buffer,
                          std::size_t size);
/// Does nothing; there to be answered by an accessor.
void hook(INoxPlugIn& instance, std::uint32_t option, std::int32_t index);

/// A set over the whole table.
class Set : public QM::QMParameterSet {
public:
    explicit Set(std::int32_t typeIndex = 1)
        : QMParameterSet(parameterTest::parameters(), parameterTest::groups(),
                         parameterTest::meters(), typeIndex) {}
};

} // namespace parameterTest
