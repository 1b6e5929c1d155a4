// SPDX-License-Identifier: GPL-3.0-or-later
//
// Records from parameters, against values worked out with 50 decimal digits and rounded to single
// precision where the arithmetic rounds.

#include "brolt/signal/CoefficientComputation.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

namespace {

Coefficients computed(BroltParameters parameters) {
    Coefficients record;
    computeCoefficients(record, parameters);
    return record;
}

uint32_t bits(float value) {
    return std::bit_cast<uint32_t>(value);
}

struct Worked {
    float setting;
    uint32_t expected;
};

} // namespace

TEST(CoefficientComputation, theDefaultSettingsGiveTheKnownRecord) {
    const std::vector<uint32_t> expected{0x3f800000, 0x3f800000, 0x3f800000, 0x3e809bcc, 0x472c4400,
                                         0x00000002, 0x3f7ffdfd, 0x3f7fe931, 0x3f7ffbfa, 0x3a83126f,
                                         0x3cd318a1, 0x39c37efd, 0x3cd318a1, 0x39c37efd, 0x3f7de425,
                                         0x3f7ebc49, 0x3f7bc6df, 0x3f7d7809};
    EXPECT_EQ(wordsOf(recordOf(defaultParameters(), 2)), expected);
}

TEST(CoefficientComputation, leavesTheVersionToTheCallerAndFillsEverythingElse) {
    Coefficients record = std::bit_cast<Coefficients>([] {
        std::array<uint32_t, 18> garbage{};
        garbage.fill(0xa5a5a5a5);
        return garbage;
    }());
    computeCoefficients(record, defaultParameters());
    EXPECT_EQ(static_cast<uint32_t>(record.meterVersion), 0xa5a5a5a5);
    record.meterVersion = 2;
    EXPECT_EQ(wordsOf(record), wordsOf(recordOf(defaultParameters(), 2)));
}

TEST(CoefficientComputation, turnsDecibelsIntoLinearGains) {
    // 10^(dB / 20): 0.001, 0.063095..., 0.251188..., 0.668343..., 1, 1.995262..., 15.848933...
    for (const Worked& each :
         {Worked{-60.0F, 0x3a83126f}, Worked{-24.0F, 0x3d813855}, Worked{-12.0F, 0x3e809bcc},
          Worked{-3.5F, 0x3f2b1896}, Worked{0.0F, 0x3f800000}, Worked{6.0F, 0x3fff64c2},
          Worked{24.0F, 0x417d953b}}) {
        BroltParameters parameters = defaultParameters();
        parameters.outputGain = each.setting;
        EXPECT_EQ(bits(computed(parameters).outputGain), each.expected) << each.setting << " dB";
        parameters = defaultParameters();
        parameters.osc1MixGain = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc1Gain), each.expected) << each.setting << " dB";
        parameters = defaultParameters();
        parameters.osc2MixGain = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc2Gain), each.expected) << each.setting << " dB";
    }
}

TEST(CoefficientComputation, turnsPercentIntoAWetShare) {
    for (const Worked& each : {Worked{0.0F, 0x00000000}, Worked{37.5F, 0x3ec00000},
                               Worked{99.99F, 0x3f7ff972}, Worked{100.0F, 0x3f800000}}) {
        BroltParameters parameters = defaultParameters();
        parameters.wetDry = each.setting;
        EXPECT_EQ(bits(computed(parameters).wetMix), each.expected) << each.setting << " %";
    }
}

TEST(CoefficientComputation, turnsMillisecondsIntoDetectorRates) {
    // 1 - 0.1^(1 / n), n = 0.001 * ms * 44100 in single precision from left to right.
    // At 1.04, 1.06, 1.09 and 1.16 ms both other orders of the product give another last bit.
    const std::array<Worked, 11> times{
        Worked{1.0F, 0x3d50605a},   Worked{1.04F, 0x3d488fbd},  Worked{1.06F, 0x3d44dea7},
        Worked{1.09F, 0x3d3f9480},  Worked{1.16F, 0x3d34470f},  Worked{2.0F, 0x3cd318a1},
        Worked{5.0F, 0x3c2a3363},   Worked{37.31F, 0x3ab74c4e}, Worked{100.0F, 0x3a08d648},
        Worked{140.0F, 0x39c37efd}, Worked{1000.0F, 0x385afd9e}};
    for (const Worked& each : times) {
        BroltParameters parameters = defaultParameters();
        parameters.envelopeAttack = each.setting;
        EXPECT_EQ(bits(computed(parameters).levelAttack), each.expected) << each.setting << " ms";
        parameters = defaultParameters();
        parameters.envelopeRelease = each.setting;
        EXPECT_EQ(bits(computed(parameters).levelRelease), each.expected) << each.setting << " ms";
        parameters = defaultParameters();
        parameters.pitchAttack = each.setting;
        EXPECT_EQ(bits(computed(parameters).pitchAttack), each.expected) << each.setting << " ms";
        parameters = defaultParameters();
        parameters.pitchRelease = each.setting;
        EXPECT_EQ(bits(computed(parameters).pitchRelease), each.expected) << each.setting << " ms";
    }
}

TEST(CoefficientComputation, aTimeOfZeroFollowsAtOnce) {
    BroltParameters parameters = defaultParameters();
    parameters.envelopeAttack = 0.0F;
    EXPECT_EQ(computed(parameters).levelAttack, 1.0F);
}

TEST(CoefficientComputation, turnsHertzIntoOscillatorCoefficients) {
    // The root in [-1, 1] of t^3 - 3 t + 2 cos(w). Below about 1.7 Hz the cosine rounds to 1 and
    // the oscillator stands still; half the sample rate is -1.
    const std::array<Worked, 10> frequencies{
        Worked{1.0F, 0x3f800000},    Worked{1.5F, 0x3f800000},   Worked{2.0F, 0x3f7ff2f0},
        Worked{20.0F, 0x3f7f943e},   Worked{60.0F, 0x3f7ebc49},  Worked{100.0F, 0x3f7de425},
        Worked{120.0F, 0x3f7d7809},  Worked{200.0F, 0x3f7bc6df}, Worked{440.0F, 0x3f76ade0},
        Worked{22050.0F, 0xbf800000}};
    for (const Worked& each : frequencies) {
        BroltParameters parameters = defaultParameters();
        parameters.osc1AttackFrequency = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc1AttackT), each.expected) << each.setting << " Hz";
        parameters = defaultParameters();
        parameters.osc1SustainFrequency = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc1SustainT), each.expected) << each.setting << " Hz";
        parameters = defaultParameters();
        parameters.osc2AttackFrequency = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc2AttackT), each.expected) << each.setting << " Hz";
        parameters = defaultParameters();
        parameters.osc2SustainFrequency = each.setting;
        EXPECT_EQ(bits(computed(parameters).osc2SustainT), each.expected) << each.setting << " Hz";
    }
}

TEST(CoefficientComputation, aDisabledOscillatorHasNoGainAndKeepsItsFrequencies) {
    BroltParameters parameters = defaultParameters();
    parameters.osc1Enable = false;
    Coefficients expected = recordOf(defaultParameters());
    expected.osc1Gain = 0.0F;
    EXPECT_EQ(wordsOf(recordOf(parameters)), wordsOf(expected));

    parameters.osc2Enable = false;
    expected.osc2Gain = 0.0F;
    EXPECT_EQ(wordsOf(recordOf(parameters)), wordsOf(expected));
}

TEST(CoefficientComputation, bypassPassesTheInputAtUnityWhateverTheGainsAndChangesNothingElse) {
    BroltParameters parameters = defaultParameters();
    parameters.outputGain = 13.0F;
    parameters.wetDry = 40.0F;
    parameters.osc1MixGain = 3.0F;
    Coefficients expected = recordOf(parameters);
    expected.outputGain = 1.0F;
    expected.wetMix = 0.0F;
    parameters.masterBypass = true;
    EXPECT_EQ(wordsOf(recordOf(parameters)), wordsOf(expected));
}
