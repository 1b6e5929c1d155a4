// SPDX-License-Identifier: GPL-3.0-or-later
// Typed values and displayed ones, read back.

#include "plugin-model/ValueText.h"

#include <gtest/gtest.h>

namespace {

using QM::parseValueText;

TEST(ValueText, readsAPlainNumberWithSignPointCommaAndExponent) {
    EXPECT_EQ(parseValueText("440"), 440.0);
    EXPECT_EQ(parseValueText("-12.5"), -12.5);
    EXPECT_EQ(parseValueText("+6"), 6.0);
    EXPECT_EQ(parseValueText("0,25"), 0.25);
    EXPECT_EQ(parseValueText("1e2"), 100.0);
}

TEST(ValueText, readsThePrefixesOfTheEngineeringDisplay) {
    EXPECT_EQ(parseValueText("1.5k"), 1500.0);
    EXPECT_EQ(parseValueText("1.5 k"), 1500.0);
    EXPECT_EQ(parseValueText("2K"), 2000.0);
    EXPECT_EQ(parseValueText("3M"), 3000000.0);
    EXPECT_DOUBLE_EQ(parseValueText("20m").value(), 0.02);
    EXPECT_DOUBLE_EQ(parseValueText("4u").value(), 4e-6);
    EXPECT_DOUBLE_EQ(parseValueText("4\xC2\xB5").value(), 4e-6);
    EXPECT_DOUBLE_EQ(parseValueText("4\xCE\xBC").value(), 4e-6);
}

TEST(ValueText, ignoresBlanksInFrontAndWhateverFollows) {
    EXPECT_EQ(parseValueText("  7 "), 7.0);
    EXPECT_EQ(parseValueText("7 Hz"), 7.0);
    EXPECT_EQ(parseValueText("7;8"), 7.0);
}

TEST(ValueText, findsNoNumberWhereThereIsNone) {
    for (const char* text : {"", " ", "Hz", "k", "-", "+", "nan", "inf", "-inf", "1e999", "+-1"})
        EXPECT_EQ(parseValueText(text), std::nullopt) << text;
}

TEST(ValueText, findsNoNumberBeyondADouble) {
    EXPECT_EQ(parseValueText("1e308M"), std::nullopt);
}

} // namespace
