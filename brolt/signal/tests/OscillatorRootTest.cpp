// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every oscillator coefficient is the correctly rounded root of its cubic: verified in whole
// numbers, for every frequency the product can be set to.
//
// k = cos(w) is single precision and lies in [1/2, 1], so K = k 2^24 is a whole number. The root t
// lies in [1/2, 1] too, where single-precision numbers are multiples of 2^-24 and the points
// halfway between them odd multiples M of 2^-25. With f(t) = t^3 - 3 t + 2 k,
//     f(M 2^-25) 2^75 = M^3 - 3 M 2^50 + K 2^52,
// below 2^77 in magnitude. f falls throughout [-1, 1], so the coefficient is the nearest number to
// the root exactly when f is positive at the point halfway below it and negative halfway above.

#include "brolt/signal/tests/BroltTestKit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace {

__extension__ using Wide = __int128;

/// k as the computation has it, by another library function and a type of more digits.
int64_t scaledCosine(float frequency) {
    const auto w =
        static_cast<float>(static_cast<double>(frequency) * (2.0 * std::numbers::pi) / 44100.0);
    const auto k = static_cast<float>(std::cos(static_cast<long double>(w)));
    return static_cast<int64_t>(std::ldexp(static_cast<double>(k), 24));
}

Wide cubicAt(int64_t m, int64_t k) {
    const Wide wide = m;
    return wide * wide * wide - ((3 * wide) << 50) + (static_cast<Wide>(k) << 52);
}

void expectNearestToRoot(float coefficient, float frequency) {
    const int64_t k = scaledCosine(frequency);
    ASSERT_GE(k, int64_t{1} << 23);
    ASSERT_GE(coefficient, 0.5F);
    ASSERT_LE(coefficient, 1.0F);
    const auto m = static_cast<int64_t>(std::ldexp(static_cast<double>(coefficient), 25));
    ASSERT_GT(cubicAt(m - 1, k), 0) << frequency << " Hz: the root lies below";
    // The root is never above 1, since f(1) = 2 k - 2 <= 0.
    if (coefficient < 1.0F) {
        ASSERT_LT(cubicAt(m + 1, k), 0) << frequency << " Hz: the root lies above";
    }
}

float frequencyOfStep(int step) {
    return static_cast<float>(static_cast<double>(step) * 0.01);
}

} // namespace

TEST(OscillatorRoot, isCorrectlyRoundedForEveryHundredthOfAHertz) {
    BroltParameters parameters = defaultParameters();
    for (int step = 100; step <= 44000; ++step) {
        const float frequency = frequencyOfStep(step);
        parameters.osc1AttackFrequency = frequency;
        parameters.osc1SustainFrequency = frequency;
        parameters.osc2AttackFrequency = frequency;
        parameters.osc2SustainFrequency = frequency;
        const Coefficients record = recordOf(parameters);
        expectNearestToRoot(record.osc1AttackT, frequency);
        ASSERT_EQ(record.osc1SustainT, record.osc1AttackT);
        ASSERT_EQ(record.osc2AttackT, record.osc1AttackT);
        ASSERT_EQ(record.osc2SustainT, record.osc1AttackT);
        if (HasFatalFailure())
            return;
    }
}

TEST(OscillatorRoot, theVerificationRefusesTheNeighbours) {
    // Of a number next to a correctly rounded one, the root must be found on the other side.
    const Coefficients record = recordOf(defaultParameters());
    const int64_t k = scaledCosine(100.0F);
    const auto m = static_cast<int64_t>(std::ldexp(static_cast<double>(record.osc1AttackT), 25));
    EXPECT_LT(cubicAt(m + 2 - 1, k), 0);
    EXPECT_GT(cubicAt(m - 2 + 1, k), 0);
}
