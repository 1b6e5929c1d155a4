// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/ParameterTestTable.h"

#include "plugin-model/EngineeringDisplay.h"

#include <cstdio>

namespace parameterTest {
namespace {

constexpr std::array<const char*, 3> modeNames{"Low", "Mid", "High"};
constexpr std::array<const char*, 2> switchNames{"never", "shown"};

constexpr std::array<const char*, 1> plainSubgroups{"Main"};
constexpr std::array<const char*, 2> filterSubgroups{"", "Upper"};

constexpr FourCharCode id(const char (&text)[5]) {
    return fourCharCode(text);
}

// clang-format off
const std::array<NoxPlugInParameter, count> table{{
    // name     value names         unit  text                   text with unit                 min   max    default taper step  factor id          grp sub hook  opt1 opt2 unit reserved             curve opt3
    {"Level",  nullptr,            "dB", nullptr,               nullptr,                       -8.0,   8.0, 2.5,    0,    0.5,  1.0,   id("levl"), 0,  0,  nullptr, 10,  20,  13,  0x0000000000000001,  0.5,  30},
    {"Mode",   modeNames.data(),   "m",  nullptr,               nullptr,                        1.0,   3.0, 2.0,    2,    1.0,  2.0,   id("mode"), 1,  1,  nullptr, 11,  21,   2,  0x0000000000000002,  0.25, 31},
    {"Time",   nullptr,            "s",  QM::formatEngineering, QM::formatEngineeringWithUnit,  1.0, 100.0, 10.0,   1,    0.01, 3.0,   id("time"), 1,  0,  nullptr, 12,  22,  24,  0x0000000000000003,  3.0,  32},
    {"Switch", switchNames.data(), "x",  formatSwitch,          formatSwitchWithUnit,           0.0,   1.0, 1.0,    2,    0.25, 4.0,   id("swit"), 1,  7,  nullptr, 13,  23,   8,  0x0000000000000004,  4.0,  33},
    {"Stray",  nullptr,            "%",  nullptr,               nullptr,                        0.0,  10.0, 5.0,    3,    0.1,  5.0,   id("stry"), 9,  2,  hook,    14,  24,   3,  0x1122334455667788,  0.75, 34},
}};

constexpr std::array<NoxParameterGroup, 2> groupTable{{
    {"",       plainSubgroups.size(),  plainSubgroups.data()},
    {"Filter", filterSubgroups.size(), filterSubgroups.data()},
}};

constexpr std::array<NoxMeterDescriptor, 2> meterTable{{
    {"Left",  id("mtrL"), 0, 1},
    {"Right", id("mtrR"), 1, 6},
}};
// clang-format on

} // namespace

std::span<const NoxPlugInParameter> parameters() {
    return table;
}

std::span<const NoxParameterGroup> groups() {
    return groupTable;
}

std::span<const NoxMeterDescriptor> meters() {
    return meterTable;
}

void formatSwitch(const NoxPlugInParameter& parameter, double value, char* buffer,
                  std::size_t size) {
    std::snprintf(buffer, size, "<%s %d>", parameter.name, static_cast<int>(value));
}

void formatSwitchWithUnit(const NoxPlugInParameter& parameter, double value, char* buffer,
                          std::size_t size) {
    std::snprintf(buffer, size, "<%s %d %s>", parameter.name, static_cast<int>(value),
                  parameter.unit);
}

void hook(INoxPlugIn&, std::uint32_t, std::int32_t) {}

} // namespace parameterTest
