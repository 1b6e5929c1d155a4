// SPDX-License-Identifier: GPL-3.0-or-later
// What hosts and the editor show for values of the product's parameters.
#include "brolt/model/QMBrolt_ParametersSet.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

#include <limits>

using parameterTest::textWritten;
using parameterTest::untouched;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class ParameterTexts : public testing::Test {
protected:
    std::string text(const char (&id)[5], double value) {
        return textWritten([&](char* b, std::size_t n) {
            set.formatValueText(set.indexOfID(fourCharCode(id)), value, b, n);
        });
    }

    std::string textWithUnit(const char (&id)[5], double value) {
        return textWritten([&](char* b, std::size_t n) {
            set.formatValueTextWithUnit(set.indexOfID(fourCharCode(id)), value, b, n);
        });
    }

    const QM::QMBrolt_ParametersSet set{2};
};

} // namespace

TEST_F(ParameterTexts, theBypassShowsWhetherTheProcessorIsOn) {
    EXPECT_EQ(text("mbyp", 0.0), "On");
    EXPECT_EQ(text("mbyp", 1.0), "Off");
    EXPECT_EQ(textWithUnit("mbyp", 0.0), "On");
    EXPECT_EQ(textWithUnit("mbyp", 1.0), "Off");
    EXPECT_STREQ(set.valueNamesPointer(0)[1], "Bypass");
}

TEST_F(ParameterTexts, theBypassTextIsCutToItsBuffer) {
    EXPECT_EQ(textWritten([&](char* b, std::size_t n) { set.formatValueText(0, 1.0, b, n); }, 3),
              "Of");
    EXPECT_EQ(textWritten([&](char* b, std::size_t n) { set.formatValueText(0, 1.0, b, n); }, 0),
              untouched);
}

TEST_F(ParameterTexts, theOscillatorSwitchesShowTheirValueNames) {
    EXPECT_EQ(text("osc1", 0.0), "Disabled");
    EXPECT_EQ(text("osc1", 1.0), "Enabled");
    EXPECT_EQ(text("osc2", 0.0), "Disabled");
    EXPECT_EQ(text("osc2", 0.99), "Disabled");
    EXPECT_EQ(text("osc2", 1.0), "Enabled");
    EXPECT_EQ(text("osc2", 2.0), untouched);
    EXPECT_EQ(text("osc1", -1.0), untouched);
    EXPECT_EQ(text("osc1", notANumber), untouched);
    EXPECT_EQ(textWithUnit("osc1", 1.0), untouched);
    EXPECT_EQ(textWithUnit("osc2", 0.0), untouched);
}

TEST_F(ParameterTexts, theDefaultsAreShownWithAndWithoutUnit) {
    struct {
        const char (&id)[5];
        double value;
        const char* text;
        const char* withUnit;
    } const defaults[] = {
        {"afre", 100.0, "100", "100 Hz"}, {"sfre", 60.0, "60", "60 Hz"},
        {"mgan", 0.0, "0", "0 dB"},       {"dafr", 200.0, "200", "200 Hz"},
        {"dsfr", 120.0, "120", "120 Hz"}, {"dmgn", -12.0, "-12", "-12 dB"},
        {"attk", 2.0, "2", "2 ms"},       {"rlse", 140.0, "140", "140 ms"},
        {"patt", 2.0, "2", "2 ms"},       {"prls", 140.0, "140", "140 ms"},
        {"wetd", 100.0, "100", "100 %"},  {"gain", 0.0, "0", "0 dB"},
    };

    for (const auto& each : defaults) {
        EXPECT_EQ(text(each.id, each.value), each.text) << each.id;
        EXPECT_EQ(textWithUnit(each.id, each.value), each.withUnit) << each.id;
    }
}

TEST_F(ParameterTexts, thousandsAreKiloAndThousandthsMilli) {
    EXPECT_EQ(text("afre", 1000.0), "1k");
    EXPECT_EQ(textWithUnit("afre", 1000.0), "1 kHz");
    EXPECT_EQ(text("rlse", 1000.0), "1k");
    EXPECT_EQ(textWithUnit("rlse", 1000.0), "1 kms");
    EXPECT_EQ(text("afre", 0.0005), "0.5m");
    EXPECT_EQ(textWithUnit("gain", -0.0005), "-0.5 mdB");
    EXPECT_EQ(text("afre", 0.0), "0");
    EXPECT_EQ(textWithUnit("wetd", 2e-7), "0.2\xC2\xB5%");
}

TEST_F(ParameterTexts, valuesBetweenStepsAreShownWithSixDigits) {
    EXPECT_EQ(textWithUnit("gain", -5.9999999), "-6 dB");
    EXPECT_EQ(textWithUnit("afre", 123.456789), "123.457 Hz");
    EXPECT_EQ(textWithUnit("wetd", 12.35), "12.35 %");
}
