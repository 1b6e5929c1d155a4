// SPDX-License-Identifier: GPL-3.0-or-later
// The engineering display, over every prefix and at the borders between them.
#include "plugin-model/EngineeringDisplay.h"

#include "plugin-model/tests/ParameterCommaLocale.h"
#include "plugin-model/tests/ParameterTestTable.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using parameterTest::textWritten;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
/// The micro sign in UTF-8.
#define MICRO "\xC2\xB5"

std::string shown(double value, std::size_t size = 64) {
    const NoxPlugInParameter parameter{};
    return textWritten(
        [&](char* b, std::size_t n) { QM::formatEngineering(parameter, value, b, n); }, size);
}

std::string shownWithUnit(double value, const char* unit, std::size_t size = 64) {
    NoxPlugInParameter parameter{};
    parameter.unit = unit;
    return textWritten(
        [&](char* b, std::size_t n) { QM::formatEngineeringWithUnit(parameter, value, b, n); },
        size);
}

struct Shown {
    double value;
    const char* text;
    const char* textInHertz;
};

// clang-format off
const Shown table[] = {
    // From 1000 on: kilo.
    {1000.0,        "1k",            "1 kHz"},
    {1500.0,        "1.5k",          "1.5 kHz"},
    {22050.0,       "22.05k",        "22.05 kHz"},
    {123456.789,    "123.457k",      "123.457 kHz"},
    {1e9,           "1e+06k",        "1e+06 kHz"},
    // Between 0.001 and 1000: the number.
    {999.999,       "999.999",       "999.999 Hz"},
    {999.9999,      "1000",          "1000 Hz"},
    {440.0,         "440",           "440 Hz"},
    {100.0,         "100",           "100 Hz"},
    {12.3456789,    "12.3457",       "12.3457 Hz"},
    {1.0,           "1",             "1 Hz"},
    {0.5,           "0.5",           "0.5 Hz"},
    {0.0011,        "0.0011",        "0.0011 Hz"},
    // Up to and with 0.001: milli.
    {0.001,         "1m",            "1 mHz"},
    {0.0005,        "0.5m",          "0.5 mHz"},
    {0.00012345678, "0.123457m",     "0.123457 mHz"},
    {1.1e-6,        "0.0011m",       "0.0011 mHz"},
    // Up to and with 0.000001: micro, which has no blank before its prefix.
    {1e-6,          "1" MICRO,       "1" MICRO "Hz"},
    {2.5e-7,        "0.25" MICRO,    "0.25" MICRO "Hz"},
    {1e-12,         "1e-06" MICRO,   "1e-06" MICRO "Hz"},
    // Zero has no prefix.
    {0.0,           "0",             "0 Hz"},
};
// clang-format on

} // namespace

TEST(EngineeringDisplay, choosesThePrefixByMagnitude) {
    for (const Shown& row : table) {
        EXPECT_EQ(shown(row.value), row.text) << row.value;
        EXPECT_EQ(shownWithUnit(row.value, "Hz"), row.textInHertz) << row.value;
    }
}

TEST(EngineeringDisplay, aNegativeValueHasThePrefixOfItsMagnitude) {
    for (const Shown& row : table) {
        EXPECT_EQ(shown(-row.value), std::string("-") + row.text) << row.value;
        EXPECT_EQ(shownWithUnit(-row.value, "Hz"), std::string("-") + row.textInHertz) << row.value;
    }
}

TEST(EngineeringDisplay, theNeighboursOfTheBordersAreOnTheirOwnSides) {
    EXPECT_EQ(shown(std::nextafter(1000.0, 0.0)), "1000");
    EXPECT_EQ(shown(std::nextafter(1000.0, infinity)), "1k");
    EXPECT_EQ(shown(std::nextafter(0.001, 0.0)), "1m");
    EXPECT_EQ(shown(std::nextafter(0.001, 1.0)), "0.001");
    EXPECT_EQ(shown(std::nextafter(1e-6, 0.0)), "1" MICRO);
    EXPECT_EQ(shown(std::nextafter(1e-6, 1.0)), "0.001m");
}

TEST(EngineeringDisplay, infinitiesAndNotANumberHaveTexts) {
    EXPECT_EQ(shown(infinity), "infk");
    EXPECT_EQ(shown(-infinity), "-infk");
    EXPECT_EQ(shownWithUnit(infinity, "dB"), "inf kdB");
    EXPECT_EQ(shown(notANumber), "nan");
    EXPECT_EQ(shownWithUnit(notANumber, "dB"), "nan dB");
    EXPECT_EQ(shown(std::numeric_limits<double>::max()), "1.79769e+305k");
    EXPECT_EQ(shown(std::numeric_limits<double>::denorm_min()), "4.94066e-318" MICRO);
}

TEST(EngineeringDisplay, anEmptyUnitLeavesTheBlank) {
    EXPECT_EQ(shownWithUnit(5.0, ""), "5 ");
    EXPECT_EQ(shownWithUnit(5000.0, ""), "5 k");
}

TEST(EngineeringDisplay, isCutToTheBufferAndTerminated) {
    EXPECT_EQ(shown(123.456, 8), "123.456");
    EXPECT_EQ(shown(123.456, 7), "123.45");
    EXPECT_EQ(shown(123.456, 2), "1");
    EXPECT_EQ(shown(123.456, 1), "");
    EXPECT_EQ(shownWithUnit(1500.0, "Hz", 8), "1.5 kHz");
    EXPECT_EQ(shownWithUnit(1500.0, "Hz", 7), "1.5 kH");
    EXPECT_EQ(shownWithUnit(1500.0, "Hz", 1), "");
}

TEST(EngineeringDisplay, aUnitOfAnyLengthIsCut) {
    const std::string unit(1000, 'u');
    EXPECT_EQ(shownWithUnit(1.0, unit.c_str(), 100), "1 " + std::string(97, 'u'));
}

TEST(EngineeringDisplay, aBufferOfNoSizeOrNoBufferIsLeftAlone) {
    EXPECT_EQ(shown(1.0, 0), parameterTest::untouched);
    EXPECT_EQ(shownWithUnit(1.0, "Hz", 0), parameterTest::untouched);
    NoxPlugInParameter parameter{};
    parameter.unit = "Hz";
    QM::formatEngineering(parameter, 1.0, nullptr, 8);
    QM::formatEngineeringWithUnit(parameter, 1.0, nullptr, 8);
}

TEST(EngineeringDisplay, hasDecimalPointsUnderALocaleWithCommas) {
    const parameterTest::CommaLocale locale;
    if (!locale.isInForce())
        GTEST_SKIP() << "this machine has no locale with decimal commas and cannot compile one";
    EXPECT_EQ(shown(1500.0), "1.5k");
    EXPECT_EQ(shown(0.5), "0.5");
    EXPECT_EQ(shownWithUnit(0.00025, "Hz"), "0.25 mHz");
}
