// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text are those of printf's "%g" in the C locale, whatever the process's locale is.
#include "plugin-model/NumberText.h"

#include "plugin-model/tests/ParameterCommaLocale.h"
#include "plugin-model/tests/ParameterTestTable.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

using QM::numberText;

namespace {

std::string printed(double value, int significantDigits) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*g", significantDigits, value);
    return text.data();
}

} // namespace

TEST(NumberText, hasSixSignificantDigitsUnlessToldOtherwise) {
    EXPECT_EQ(numberText(0.0), "0");
    EXPECT_EQ(numberText(1.0), "1");
    EXPECT_EQ(numberText(-12.5), "-12.5");
    EXPECT_EQ(numberText(3.14159265), "3.14159");
    EXPECT_EQ(numberText(999999.4), "999999");
    EXPECT_EQ(numberText(999999.5), "1e+06");
    EXPECT_EQ(numberText(0.0001), "0.0001");
    EXPECT_EQ(numberText(0.00001), "1e-05");
    EXPECT_EQ(numberText(1e100), "1e+100");
    EXPECT_EQ(numberText(-0.0), "-0");
    EXPECT_EQ(numberText(3.14159265, 3), "3.14");
    EXPECT_EQ(numberText(3.14159265, 4), "3.142");
}

TEST(NumberText, roundsAnExactHalfToTheEvenDigit) {
    EXPECT_EQ(numberText(0.125, 2), "0.12");
    EXPECT_EQ(numberText(0.375, 2), "0.38");
}

TEST(NumberText, infinitiesAndNotANumberHaveTexts) {
    EXPECT_EQ(numberText(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(numberText(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(numberText(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberText, agreesWithPrintfInTheCLocaleForAnyNumber) {
    std::mt19937_64 random(20260101);
    std::uniform_real_distribution<double> ordinary(-2000.0, 2000.0);
    for (int i = 0; i < 20000; ++i) {
        const double anyBits = std::bit_cast<double>(random());
        const double value = i % 2 == 0 || std::isnan(anyBits) ? ordinary(random) : anyBits;
        for (const int digits : {3, 4, 6})
            ASSERT_EQ(numberText(value, digits), printed(value, digits));
    }
}

TEST(NumberText, keepsTheDecimalPointUnderALocaleWithCommas) {
    const parameterTest::CommaLocale locale;
    if (!locale.isInForce())
        GTEST_SKIP() << "this machine has no locale with decimal commas and cannot compile one";
    ASSERT_EQ(printed(0.5, 6), "0,5") << "the locale does not do what this test needs";
    EXPECT_EQ(numberText(0.5), "0.5");
    EXPECT_EQ(numberText(-1234.5), "-1234.5");
}

TEST(NumberText, aPlainValueTextKeepsTheDecimalPointToo) {
    const parameterTest::CommaLocale locale;
    if (!locale.isInForce())
        GTEST_SKIP() << "this machine has no locale with decimal commas and cannot compile one";
    const parameterTest::Set set;
    EXPECT_EQ(parameterTest::textWritten([&](char* b, std::size_t n) {
                  set.formatValueText(parameterTest::levelIndex, 1500.0, b, n);
              }),
              "1.5k");
}
