// SPDX-License-Identifier: GPL-3.0-or-later
// Values as text and text as values.
#include "widgets/controls/DisplayNumber.h"
#include "widgets/controls/QMLogParameterTextTransformer.h"
#include "widgets/controls/QMParameterTextTransformer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

juce::String shown(double value, int decimals = 2) {
    return QMParameterTextTransformer().formatValue(value, decimals);
}

double typed(const juce::String& text) {
    return QMParameterTextTransformer().parseText(text);
}

} // namespace

TEST(ParameterText, ThousandsHaveAK) {
    EXPECT_EQ(shown(1500.0), "1.50k");
    EXPECT_EQ(shown(1000.0), "1.00k");
    EXPECT_EQ(shown(999.99), "999.99");
    EXPECT_EQ(shown(-2500.0, 1), "-2.5k");
    EXPECT_EQ(shown(1000000.0), "1000.00k");
}

TEST(ParameterText, WhatIsBelowAThousandthHasAnM) {
    EXPECT_EQ(shown(0.0005), "0.50m");
    EXPECT_EQ(shown(-0.0005), "-0.50m");
    EXPECT_EQ(shown(0.001), "0.00");
    EXPECT_EQ(shown(0.0000005), "0.00m");
    EXPECT_EQ(shown(0.0), "0.00");
}

TEST(ParameterText, DecimalsAreThoseAskedFor) {
    EXPECT_EQ(shown(12.345, 0), "12");
    EXPECT_EQ(shown(12.345, 1), "12.3");
    EXPECT_EQ(shown(12.345, 3), "12.345");
    EXPECT_EQ(shown(7.0, -1), "7");
}

TEST(ParameterText, WhatReadsAsZeroHasNoSign) {
    EXPECT_EQ(shown(-0.0), "0.00");
    EXPECT_EQ(shown(-0.004), "0.00");
    EXPECT_EQ(shown(-0.006), "-0.01");
}

TEST(ParameterText, InfinityIsPlain) {
    EXPECT_EQ(shown(infinity), "inf");
    EXPECT_EQ(shown(-infinity), "-inf");
}

TEST(ParameterText, ALargeNumberFits) {
    const juce::String text = shown(std::numeric_limits<double>::max());
    EXPECT_EQ(text.length(), 310); // 306 digits, a point, two decimals, a k
    EXPECT_TRUE(text.endsWith(".00k"));
}

TEST(TypedText, ADecimalCommaIsAPoint) {
    EXPECT_DOUBLE_EQ(typed("1,5k"), 1500.0);
    EXPECT_DOUBLE_EQ(typed("0,25"), 0.25);
}

TEST(TypedText, EveryLetterCounts) {
    EXPECT_DOUBLE_EQ(typed("2kk"), 2000000.0);
    EXPECT_DOUBLE_EQ(typed("2K"), 2000.0);
    EXPECT_DOUBLE_EQ(typed("3M"), 3000000.0);
    EXPECT_DOUBLE_EQ(typed("5m"), 0.005);
    EXPECT_DOUBLE_EQ(typed("5u"), 0.000005);
    EXPECT_DOUBLE_EQ(typed("1 kHz"), 1000.0);
    EXPECT_DOUBLE_EQ(typed("20 Hz"), 20.0);
}

TEST(TypedText, TheLeadingNumberCountsAndWhatFollowsDoesNot) {
    EXPECT_DOUBLE_EQ(typed("  -12.5 dB"), -12.5);
    EXPECT_DOUBLE_EQ(typed("+3"), 3.0);
    EXPECT_DOUBLE_EQ(typed("1e2x"), 100.0);
    EXPECT_DOUBLE_EQ(typed(".5"), 0.5);
    EXPECT_DOUBLE_EQ(typed("1,000.5"), 1.0);
    EXPECT_DOUBLE_EQ(typed("abc"), 0.0);
}

TEST(TypedText, ANumberIsThereOrIsNot) {
    for (const char* const text : {"", " ", "abc", "-", "+-3", ".", "k", "++1"})
        EXPECT_FALSE(leadingNumber(text).has_value()) << text;
    for (const char* const text : {"0", "-1", "+1", "1e", "-.5x", "inf", "-Inf"})
        EXPECT_TRUE(leadingNumber(text).has_value()) << text;
}

TEST(TypedText, NumbersThatNoDoubleHoldsAreInfiniteOrZero) {
    EXPECT_EQ(leadingNumber("1e999"), infinity);
    EXPECT_EQ(leadingNumber("-1e999"), -infinity);
    EXPECT_EQ(leadingNumber("1e-999"), 0.0);
    EXPECT_EQ(leadingNumber("1" + juce::String::repeatedString("0", 400)), infinity);
    EXPECT_EQ(leadingNumber("0." + juce::String::repeatedString("0", 400) + "1"), 0.0);
}

TEST(LogText, AmplitudesAreShownInDecibels) {
    const QMLogParameterTextTransformer log;
    EXPECT_EQ(log.formatValue(1.0, 2), "0.00");
    EXPECT_EQ(log.formatValue(0.5, 2), "-6.02");
    EXPECT_EQ(log.formatValue(10.0, 1), "20.0");
    EXPECT_EQ(log.formatValue(0.0, 2), "-inf");
    EXPECT_EQ(log.formatValue(-1.0, 2), "-inf");
}

TEST(LogText, DecibelsAreReadAsAmplitudes) {
    const QMLogParameterTextTransformer log;
    EXPECT_DOUBLE_EQ(log.parseText("0"), 1.0);
    EXPECT_DOUBLE_EQ(log.parseText("20 dB"), 10.0);
    EXPECT_NEAR(log.parseText("-6,0206"), 0.5, 1e-6);
    EXPECT_EQ(log.parseText("-inf"), 0.0);
}

TEST(DisplayNumber, IsRoundedToItsResolutionHalvesAwayFromZero) {
    EXPECT_DOUBLE_EQ(roundedToResolution(0.126, 0.01), 0.13);
    EXPECT_DOUBLE_EQ(roundedToResolution(2.5, 1.0), 3.0);
    EXPECT_DOUBLE_EQ(roundedToResolution(-2.5, 1.0), -3.0);
    EXPECT_DOUBLE_EQ(roundedToResolution(7.0, 5.0), 5.0);
    EXPECT_DOUBLE_EQ(roundedToResolution(0.126, 0.0), 0.126);
    EXPECT_EQ(roundedToResolution(-160.004, 0.01), -160.0);
}

TEST(DisplayNumber, OfAControlHasTheDecimalsOfItsResolution) {
    EXPECT_EQ(decimalsOfControl(0.01), 2);
    EXPECT_EQ(decimalsOfControl(0.0999), 2);
    EXPECT_EQ(decimalsOfControl(0.1), 1);
    EXPECT_EQ(decimalsOfControl(0.5), 1);
    EXPECT_EQ(decimalsOfControl(1.0), 0);
    EXPECT_EQ(decimalsOfControl(5.0), 0);
}

TEST(DisplayNumber, OfAReadoutHasFewerDecimalsFromAHundredOnAndMoreFromAThousandOn) {
    EXPECT_EQ(decimalsOfReadout(99.99, 0.01), 2);
    EXPECT_EQ(decimalsOfReadout(100.0, 0.01), 1);
    EXPECT_EQ(decimalsOfReadout(-150.0, 0.01), 1);
    EXPECT_EQ(decimalsOfReadout(1000.0, 0.01), 2);
    EXPECT_EQ(decimalsOfReadout(50.0, 1.0), 0);
    EXPECT_EQ(decimalsOfReadout(150.0, 1.0), 1);
    EXPECT_EQ(decimalsOfReadout(1500.0, 1.0), 2);
    EXPECT_EQ(decimalsOfReadout(50.0, 5.0), 2);
}
