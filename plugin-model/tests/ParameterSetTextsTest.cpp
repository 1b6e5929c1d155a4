// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a value: the record's function, its value name, or the plain number.
#include "plugin-model/tests/ParameterTestTable.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

#include <limits>

using parameterTest::levelIndex;
using parameterTest::modeIndex;
using parameterTest::outOfRange;
using parameterTest::strayIndex;
using parameterTest::switchIndex;
using parameterTest::textWritten;
using parameterTest::timeIndex;
using parameterTest::untouched;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class ParameterSetTexts : public testing::Test {
protected:
    std::string text(std::int32_t index, double value, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.formatValueText(index, value, b, n); },
                           size);
    }

    std::string textWithUnit(std::int32_t index, double value, std::size_t size = 64) {
        return textWritten(
            [&](char* b, std::size_t n) { set.formatValueTextWithUnit(index, value, b, n); }, size);
    }

    const parameterTest::Set set;
};

struct NumberCase {
    double value;
    const char* text;
};

} // namespace

TEST_F(ParameterSetTexts, aNumberWithoutFunctionsOrNamesIsPrintedPlainly) {
    const NumberCase cases[] = {
        {1500.0, "1.5k"},
        {5.0, "5"},
        {-20.0, "-20"},
        {1000.0, "1k"},
        {999.96, "1000"},
        {999.94, "999.9"},
        {1234.56, "1.235k"},
        {123456.0, "123.5k"},
        {12345678.0, "1.235e+04k"},
        {10.0, "10"},
        {10.004, "10"},
        {12.345, "12.35"},
        {9.999, "10"},
        {9.994, "9.99"},
        {1.23456, "1.23"},
        {0.0, "0"},
        {0.5, "0.5"},
        {0.00012345, "0.000123"},
        {0.000012345, "1.23e-05"},
    };
    for (const NumberCase& each : cases)
        EXPECT_EQ(text(levelIndex, each.value), each.text) << each.value;
}

TEST_F(ParameterSetTexts, aNegativeNumberAlwaysHasThreeDigitsAndNoKilo) {
    const NumberCase cases[] = {
        {-1500.0, "-1.5e+03"}, {-1000.0, "-1e+03"}, {-999.4, "-999"},
        {-12.345, "-12.3"},    {-0.5, "-0.5"},      {-1.23456, "-1.23"},
    };
    for (const NumberCase& each : cases)
        EXPECT_EQ(text(levelIndex, each.value), each.text) << each.value;
}

TEST_F(ParameterSetTexts, infinitiesAndNotANumberHaveTexts) {
    EXPECT_EQ(text(levelIndex, infinity), "infk");
    EXPECT_EQ(text(levelIndex, -infinity), "-inf");
    EXPECT_EQ(text(levelIndex, notANumber), "nan");
}

TEST_F(ParameterSetTexts, aValueNameIsFoundCountingFromTheMinimum) {
    EXPECT_EQ(text(modeIndex, 1.0), "Low");
    EXPECT_EQ(text(modeIndex, 2.0), "Mid");
    EXPECT_EQ(text(modeIndex, 3.0), "High");
}

TEST_F(ParameterSetTexts, aValueIsCutToAWholeNumberBeforeItsNameIsLookedUp) {
    EXPECT_EQ(text(modeIndex, 1.99), "Low");
    EXPECT_EQ(text(modeIndex, 3.99), "High");
}

TEST_F(ParameterSetTexts, aValueIsCutTowardsZero) {
    // -0.9 is cut to 0, which is the first name of a switch from 0 on.
    NoxPlugInParameter record = parameterTest::parameters()[switchIndex];
    record.formatValue = nullptr;
    const QM::QMParameterSet names({&record, 1}, {}, {}, 1);
    const auto nameOf = [&](double value) {
        return textWritten([&](char* b, std::size_t n) { names.formatValueText(0, value, b, n); });
    };
    EXPECT_EQ(nameOf(-0.9), "never");
    EXPECT_EQ(nameOf(0.0), "never");
    EXPECT_EQ(nameOf(1.0), "shown");
    EXPECT_EQ(nameOf(-1.0), untouched);
    EXPECT_EQ(nameOf(2.0), untouched);
}

TEST_F(ParameterSetTexts, aValueWithoutANameLeavesTheBufferAsItIs) {
    for (const double value :
         {0.0, 0.99, -1.0, 4.0, 1e9, 1e300, -1e300, infinity, -infinity, notANumber})
        EXPECT_EQ(text(modeIndex, value), untouched) << value;
}

TEST_F(ParameterSetTexts, theRecordsFunctionComesBeforeItsNames) {
    EXPECT_EQ(text(switchIndex, 1.0), "<Switch 1>");
    EXPECT_EQ(textWithUnit(switchIndex, 1.0), "<Switch 1 x>");
}

TEST_F(ParameterSetTexts, theFunctionGetsItsOwnRecord) {
    EXPECT_EQ(textWithUnit(timeIndex, 20.0), "20 s");
    EXPECT_EQ(text(timeIndex, 2000.0), "2k");
}

TEST_F(ParameterSetTexts, withoutAUnitFunctionTheBufferStaysAsItIs) {
    EXPECT_EQ(textWithUnit(levelIndex, 1.0), untouched);
    EXPECT_EQ(textWithUnit(modeIndex, 1.0), untouched);
    EXPECT_EQ(textWithUnit(strayIndex, 1.0), untouched);
}

TEST_F(ParameterSetTexts, areCutToTheBufferAndTerminated) {
    EXPECT_EQ(text(levelIndex, 1234.56, 4), "1.2");
    EXPECT_EQ(text(levelIndex, 1234.56, 1), "");
    EXPECT_EQ(text(modeIndex, 3.0, 3), "Hi");
    EXPECT_EQ(text(modeIndex, 3.0, 1), "");
    EXPECT_EQ(text(timeIndex, 12.5, 3), "12");
    EXPECT_EQ(textWithUnit(timeIndex, 12.5, 6), "12.5 ");
}

TEST_F(ParameterSetTexts, aBufferOfNoSizeOrNoBufferIsLeftAlone) {
    EXPECT_EQ(text(levelIndex, 1.0, 0), untouched);
    EXPECT_EQ(text(modeIndex, 1.0, 0), untouched);
    EXPECT_EQ(text(timeIndex, 1.0, 0), untouched);
    EXPECT_EQ(textWithUnit(timeIndex, 1.0, 0), untouched);
    set.formatValueText(levelIndex, 1.0, nullptr, 8);
    set.formatValueText(modeIndex, 1.0, nullptr, 8);
    set.formatValueText(timeIndex, 1.0, nullptr, 8);
    set.formatValueTextWithUnit(timeIndex, 1.0, nullptr, 8);
}

TEST_F(ParameterSetTexts, areEmptyForIndicesOutOfRange) {
    for (const std::int32_t index : outOfRange) {
        EXPECT_EQ(text(index, 1.0), "") << index;
        EXPECT_EQ(textWithUnit(index, 1.0), "") << index;
    }
}
