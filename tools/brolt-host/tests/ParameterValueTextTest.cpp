// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/ParameterValueText.h"

#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::HasSubstr;

namespace {

constexpr std::int32_t bypassIndex = 0;
constexpr std::int32_t osc1EnableIndex = 3;
constexpr std::int32_t gainIndex = 14;

class ParameterValueText : public testing::Test {
protected:
    ParameterSetting parse(const std::string& text) {
        return parseAssignment(product.parameters(), text);
    }

    std::string error(const std::string& text) {
        return errorOf([&] { parse(text); });
    }

    ProductModel product;
};

} // namespace

TEST(ParseNumber, takesDecimalNumbersWithSignAndExponent) {
    EXPECT_EQ(parseNumber("12.5"), 12.5);
    EXPECT_EQ(parseNumber("-6"), -6.0);
    EXPECT_EQ(parseNumber("+6"), 6.0);
    EXPECT_EQ(parseNumber("1e2"), 100.0);
    EXPECT_EQ(parseNumber(".5"), 0.5);
}

TEST(ParseNumber, refusesWhatIsNoFiniteNumberFromEndToEnd) {
    for (const char* text : {"", "x", "1x", "1 ", " 1", "1,5", "nan", "inf", "-inf", "1e999", "+-1",
                             "++1", "+", "-", "0x10", "1.2.3"})
        EXPECT_EQ(parseNumber(text), std::nullopt) << "'" << text << "'";
}

TEST_F(ParameterValueText, aNumberIsInDisplayUnits) {
    const ParameterSetting setting = parse("gain=-6.5");
    EXPECT_EQ(setting.index, gainIndex);
    EXPECT_EQ(setting.value, -6.5);
    EXPECT_EQ(setting.clampNotice, "");
}

TEST_F(ParameterValueText, aSwitchTakesItsValueNamesInAnyCase) {
    EXPECT_EQ(parse("osc1=Disabled").value, 0.0);
    EXPECT_EQ(parse("osc1=ENABLED").value, 1.0);
    EXPECT_EQ(parse("osc1=1").value, 1.0);
    EXPECT_EQ(parse("osc1=enabled").index, osc1EnableIndex);
    EXPECT_EQ(parse("mbyp=Engaged").value, 0.0);
    EXPECT_EQ(parse("mbyp=bypass").value, 1.0);
    EXPECT_EQ(parse("mbyp=bypass").index, bypassIndex);
}

TEST_F(ParameterValueText, namesOfAnotherParameterAreNoValues) {
    EXPECT_THAT(error("mbyp=Enabled"), HasSubstr("'Enabled' is not a value of mbyp"));
    EXPECT_THAT(error("gain=Enabled"), HasSubstr("'Enabled' is not a value of gain"));
}

TEST_F(ParameterValueText, valuesOutsideTheRangeAreClampedAndSaidSo) {
    const ParameterSetting high = parse("gain=99");
    EXPECT_EQ(high.value, 24.0);
    EXPECT_EQ(high.clampNotice, "gain 99 dB is outside -24 to 24 dB; using 24 dB");
    const ParameterSetting low = parse("sfre=0");
    EXPECT_EQ(low.value, 1.0);
    EXPECT_EQ(low.clampNotice, "sfre 0 Hz is outside 1 to 440 Hz; using 1 Hz");
    EXPECT_EQ(parse("osc1=7").clampNotice, "osc1 7 is outside 0 to 1; using 1");
    EXPECT_EQ(parse("gain=24").clampNotice, "");
    EXPECT_EQ(parse("gain=-24").clampNotice, "");
}

TEST_F(ParameterValueText, unknownIdentifiersAreAnsweredWithTheKnownOnes) {
    for (const char* text : {"foo=1", "gai=1", "gains=1", "GAIN=1", " gain=1", "=1"}) {
        EXPECT_THAT(error(text), AllOf(HasSubstr("unknown parameter '"), HasSubstr("mbyp, afre, "),
                                       HasSubstr(", wetd, gain")))
            << text;
    }
}

TEST_F(ParameterValueText, theMessageBeginsWithWhatWasTyped) {
    EXPECT_THAT(error("gain=loud"), testing::StartsWith("--set gain=loud: "));
    EXPECT_EQ(error("gain"), "--set gain: write it as ID=VALUE");
    EXPECT_THAT(error("gain="), HasSubstr("'' is not a value of gain (Output Gain)"));
    EXPECT_THAT(error("gain=1=2"), HasSubstr("'1=2' is not a value"));
}
