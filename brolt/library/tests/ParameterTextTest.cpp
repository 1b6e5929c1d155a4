// SPDX-License-Identifier: GPL-3.0-or-later
// Values as texts, and back, as hosts show them and let users type them.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ParameterRows.h"

#include <cmath>
#include <optional>

using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

class ParameterText : public ::testing::Test {
protected:
    LibraryInstance instance;

    std::string text(Vst::ParamID id, double value) {
        Vst::String128 buffer{};
        EXPECT_EQ(instance.controller().getParamStringByValue(id, value, buffer), kResultOk) << id;
        return textOf(buffer);
    }

    /// The value of a text; nothing when there is none, and then nothing was written.
    std::optional<double> value(Vst::ParamID id, const std::string& typed) {
        std::u16string wide = wideTextOf(typed);
        constexpr double unwritten = -77.0;
        Vst::ParamValue answer = unwritten;
        const tresult result = instance.controller().getParamValueByString(id, wide.data(), answer);
        if (result == kResultOk)
            return answer;
        EXPECT_EQ(result, kResultFalse) << typed;
        EXPECT_EQ(answer, unwritten) << typed;
        return std::nullopt;
    }

    void expectValue(Vst::ParamID id, const std::string& typed, double expected) {
        const std::optional<double> answer = value(id, typed);
        ASSERT_TRUE(answer) << typed;
        EXPECT_NEAR(*answer, expected, 1e-12) << typed;
    }
};

} // namespace

TEST_F(ParameterText, hasTheUnitBehindABlank) {
    EXPECT_EQ(text(14, 0.625), "6 dB");
    EXPECT_EQ(text(14, 0.0), "-24 dB");
    EXPECT_EQ(text(14, 0.5), "0 dB");
    EXPECT_EQ(text(14, 1.0), "24 dB");
    EXPECT_EQ(text(13, 1.0), "100 %");
    EXPECT_EQ(text(1, 0.0), "1 Hz");
    EXPECT_EQ(text(4, 0.0), "-60 dB");
    EXPECT_EQ(text(9, 0.0), "1 ms");
}

TEST_F(ParameterText, roundsAsTheParameterSteps) {
    EXPECT_EQ(text(13, 0.123456), "12.35 %");
    EXPECT_EQ(text(14, 17.98 / 48.0), "-6.02 dB");
}

TEST_F(ParameterText, hasSixDigits) {
    EXPECT_EQ(text(1, 0.5), "20.9762 Hz"); // the square root of 440
}

TEST_F(ParameterText, countsThousandsWithK) {
    EXPECT_EQ(text(10, 1.0), "1k ms"); // the second of the longest release
}

TEST_F(ParameterText, namesTheValuesOfSwitches) {
    // No unit, but its blank.
    for (const Vst::ParamID id : {3U, 7U}) {
        EXPECT_EQ(text(id, 0.0), "Disabled ");
        EXPECT_EQ(text(id, 0.49), "Disabled ");
        EXPECT_EQ(text(id, 0.51), "Enabled ");
        EXPECT_EQ(text(id, 1.0), "Enabled ");
    }
}

TEST_F(ParameterText, saysOfTheBypassWhetherTheProcessorIsOn) {
    EXPECT_EQ(text(0, 0.0), "On ");
    EXPECT_EQ(text(0, 1.0), "Off ");
}

TEST_F(ParameterText, saysSoWhereAValueHasNoName) {
    EXPECT_EQ(text(3, 2.0), "<not-set> ");
}

TEST_F(ParameterText, isTheSameForTheFourCharacterIdentifier) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        char id[5] = {};
        std::copy_n(parameterRows[i].id, 4, id);
        EXPECT_EQ(text(fourCharCode(id), 0.3), text(static_cast<Vst::ParamID>(i), 0.3)) << id;
    }
}

TEST_F(ParameterText, doesNotDependOnTheCurrentValue) {
    const std::string before = text(14, 0.625);
    instance.set("gain", -3.0);
    EXPECT_EQ(text(14, 0.625), before);
    EXPECT_NEAR(instance.plain("gain"), -3.0, 1e-9);
}

TEST_F(ParameterText, ofAnUnknownParameterIsNone) {
    for (const Vst::ParamID id : {15U, 0xFFFFFFFFU, fourCharCode("none")}) {
        Vst::String128 buffer{};
        EXPECT_NE(instance.controller().getParamStringByValue(id, 0.5, buffer), kResultOk) << id;
        EXPECT_FALSE(value(id, "1"));
    }
}

TEST_F(ParameterText, ofAnyNumberFitsTheHostsBuffer) {
    for (Vst::ParamID id = 0; id < 15; ++id) {
        for (const double number :
             {-1e300, -1.0, 1e-300, 2.0, 1e300, std::nan(""),
              std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
            struct {
                Vst::String128 buffer;
                Vst::TChar behind;
            } texts{};

            texts.behind = u'!';
            instance.controller().getParamStringByValue(id, number, texts.buffer);
            EXPECT_EQ(texts.behind, u'!');
        }
    }
}

TEST_F(ParameterText, isReadWithAndWithoutTheUnit) {
    expectValue(14, "6 dB", 0.625);
    expectValue(14, "6dB", 0.625);
    expectValue(14, "6", 0.625);
    expectValue(14, "-24 dB", 0.0);
    expectValue(13, "12.35 %", 0.1235);
    expectValue(13, "50%", 0.5);
    expectValue(1, "100 Hz", std::log(100.0) / std::log(440.0));
    expectValue(9, "2 ms", std::log(1001.0) / std::log(99001.0));
}

TEST_F(ParameterText, isReadUpToTheFirstUnit) {
    expectValue(14, "6 dB more than 12 dB", 0.625);
}

TEST_F(ParameterText, isReadForTheFourCharacterIdentifier) {
    expectValue(fourCharCode("gain"), "6 dB", 0.625);
    expectValue(fourCharCode("osc1"), "Disabled", 0.0);
}

TEST_F(ParameterText, thatIsShownIsReadAgain) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        if (parameterRows[i].taper == RowTaper::stepped)
            continue;
        const auto id = static_cast<Vst::ParamID>(i);
        for (const double position : {0.0, 0.25, 0.5, 0.9, 1.0}) {
            const std::string shown = text(id, position);
            const std::optional<double> read = value(id, shown);
            ASSERT_TRUE(read) << shown;
            EXPECT_EQ(text(id, *read), shown);
        }
    }
}

TEST_F(ParameterText, readsTheFirstNameOfASwitch) {
    expectValue(0, "Engaged", 0.0);
    expectValue(3, "Disabled", 0.0);
    expectValue(7, "Disabled", 0.0);
}

// The last name is not looked at, as hosts' sessions have always had it.
TEST_F(ParameterText, doesNotFindTheLastNameOfASwitch) {
    EXPECT_FALSE(value(0, "Bypass"));
    EXPECT_FALSE(value(3, "Enabled"));
    EXPECT_FALSE(value(7, "Enabled"));
}

TEST_F(ParameterText, doesNotFindWhatIsNoNameOfASwitch) {
    for (const std::string typed :
         {"On", "Off", "disabled", "Disable", "Disabled ", "0", "1", ""}) {
        EXPECT_FALSE(value(0, typed)) << typed;
        EXPECT_FALSE(value(3, typed)) << typed;
    }
}

TEST_F(ParameterText, thatIsReadChangesNothing) {
    instance.set("gain", -3.0);
    (void)value(14, "6 dB");
    (void)value(3, "Disabled");
    EXPECT_NEAR(instance.plain("gain"), -3.0, 1e-9);
    EXPECT_EQ(instance.normalised(3), 1.0);
}

TEST_F(ParameterText, ofAnyLengthIsReadSafely) {
    for (const std::size_t length : {127U, 128U, 129U, 1000U, 100000U}) {
        (void)value(14, std::string(length, '9'));
        (void)value(3, std::string(length, 'x'));
        (void)value(3, "Disabled" + std::string(length, ' '));
    }
    Vst::ParamValue answer = 0.0;
    EXPECT_NE(instance.controller().getParamValueByString(14, nullptr, answer), kResultOk);
}

// Whatever a typed text comes to, what a host then sets is in the parameter's range.
TEST_F(ParameterText, beyondTheRangeEndsAtTheRangesEnd) {
    for (const auto& [typed, expected] :
         {std::pair{"1000 dB", 24.0}, {"-1000 dB", -24.0}, {"1e400", 24.0}}) {
        if (const std::optional<double> answer = value(14, typed)) {
            EXPECT_EQ(instance.controller().setParamNormalized(14, *answer), kResultOk);
            EXPECT_NEAR(instance.plain("gain"), expected, 1e-9) << typed;
        }
    }
}
