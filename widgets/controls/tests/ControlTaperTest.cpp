// SPDX-License-Identifier: GPL-3.0-or-later
// Tapers against numbers worked out by hand, and over ranges that no formula means anything for.
#include "widgets/controls/ControlTaper.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

ControlTaper taper(std::uint32_t mode, double minimum, double maximum, double factor = 1.0) {
    ControlTaper made;
    made.mode = mode;
    made.minimum = minimum;
    made.maximum = maximum;
    made.factor = factor;
    return made;
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double exact = 1.0e-12;

} // namespace

TEST(ControlTaper, LinearIsAShareOfTheRange) {
    const ControlTaper linear = taper(0, 20.0, 120.0);
    EXPECT_DOUBLE_EQ(linear.plainAt(0.25), 45.0);
    EXPECT_DOUBLE_EQ(linear.positionOf(45.0), 0.25);
    EXPECT_DOUBLE_EQ(linear.positionOf(220.0), 2.0);
    EXPECT_DOUBLE_EQ(linear.positionOf(-80.0), -1.0);
}

TEST(ControlTaper, LinearGoesDownwardsWithASmallerMaximum) {
    const ControlTaper linear = taper(0, 10.0, 0.0);
    EXPECT_DOUBLE_EQ(linear.plainAt(0.2), 8.0);
    EXPECT_DOUBLE_EQ(linear.positionOf(8.0), 0.2);
}

TEST(ControlTaper, HalfwayOfALogarithmicRangeIsTheGeometricMean) {
    const ControlTaper logarithmic = taper(1, 10.0, 1000.0);
    EXPECT_NEAR(logarithmic.plainAt(0.0), 10.0, exact);
    EXPECT_NEAR(logarithmic.plainAt(0.5), 100.0, 1e-10);
    EXPECT_NEAR(logarithmic.plainAt(1.0), 1000.0, 1e-9);
    EXPECT_NEAR(logarithmic.positionOf(100.0), 0.5, exact);
}

TEST(ControlTaper, StretchedLogarithmicFollowsItsFormula) {
    // 1 + k(max - min) = 10000, whose square root is 100: 2 + 99 / 1000.
    const ControlTaper stretched = taper(2, 2.0, 11.999, 1000.0);
    EXPECT_NEAR(stretched.plainAt(0.0), 2.0, exact);
    EXPECT_NEAR(stretched.plainAt(0.5), 2.099, 1e-9);
    EXPECT_NEAR(stretched.plainAt(1.0), 11.999, 1e-9);
    EXPECT_NEAR(stretched.positionOf(2.099), 0.5, 1e-9);
}

TEST(ControlTaper, TheFourthModeDividesItsMinimumByTheFactorForwardsOnly) {
    // (100 + 2 - 1) / 1000.
    const ControlTaper oddity = taper(3, 2.0, 11.999, 1000.0);
    EXPECT_NEAR(oddity.plainAt(0.5), 0.101, 1e-9);
    EXPECT_NEAR(oddity.positionOf(2.099), 0.5, 1e-9);
    const ControlTaper fromZero = taper(3, 0.0, 9.999, 1000.0);
    EXPECT_NEAR(fromZero.plainAt(0.5), 0.099, 1e-9);
    EXPECT_NEAR(fromZero.positionOf(0.099), 0.5, 1e-9);
}

TEST(ControlTaper, PowerRaisesThePositionToTheInverseOfItsFactor) {
    // The square root of 0.25, and the square of 0.5.
    const ControlTaper power = taper(4, 10.0, 30.0, 2.0);
    EXPECT_DOUBLE_EQ(power.plainAt(0.25), 20.0);
    EXPECT_DOUBLE_EQ(power.positionOf(20.0), 0.25);
}

TEST(ControlTaper, AnUnknownModeAnswersZero) {
    const ControlTaper unknown = taper(5, 10.0, 30.0);
    EXPECT_EQ(unknown.plainAt(0.5), 0.0);
    EXPECT_EQ(unknown.positionOf(20.0), 0.0);
}

TEST(ControlTaper, ARangeWithoutExtentIsItsOnlyValueAndHasPositionZero) {
    for (std::uint32_t mode = 0; mode <= 4; ++mode) {
        const ControlTaper point = taper(mode, 3.0, 3.0, 2.0);
        EXPECT_DOUBLE_EQ(point.plainAt(0.7), 3.0) << mode;
        EXPECT_EQ(point.positionOf(3.0), 0.0) << mode;
        EXPECT_EQ(point.positionOf(4.0), 0.0) << mode;
    }
}

TEST(ControlTaper, ALogarithmAcrossZeroIsLinear) {
    const ControlTaper across = taper(1, -24.0, 24.0);
    EXPECT_DOUBLE_EQ(across.plainAt(0.75), 12.0);
    EXPECT_DOUBLE_EQ(across.positionOf(12.0), 0.75);
    const ControlTaper fromZero = taper(1, 0.0, 10.0);
    EXPECT_DOUBLE_EQ(fromZero.plainAt(0.5), 5.0);
    EXPECT_DOUBLE_EQ(fromZero.positionOf(5.0), 0.5);
}

TEST(ControlTaper, WhatIsBelowTheCurvesReachHasPositionZero) {
    EXPECT_EQ(taper(2, 1.0, 10.0, 1000.0).positionOf(-50.0), 0.0);
    EXPECT_EQ(taper(1, 1.0, 10.0).positionOf(-5.0), 0.0);
    EXPECT_EQ(taper(4, 1.0, 10.0, 0.5).positionOf(-5.0), 0.0);
}

TEST(ControlTaper, ARangeThatIsNotFiniteIsTheEndThatIs) {
    for (std::uint32_t mode = 0; mode <= 4; ++mode) {
        EXPECT_EQ(taper(mode, -infinity, 6.0).plainAt(0.5), 6.0) << mode;
        EXPECT_EQ(taper(mode, 2.0, infinity).plainAt(0.5), 2.0) << mode;
        EXPECT_EQ(taper(mode, -infinity, infinity).plainAt(0.5), 0.0) << mode;
        EXPECT_EQ(taper(mode, notANumber, notANumber).plainAt(0.5), 0.0) << mode;
        EXPECT_EQ(taper(mode, -infinity, 6.0).positionOf(1.0), 0.0) << mode;
    }
}

TEST(ControlTaper, NothingIsEverNotANumber) {
    for (std::uint32_t mode = 0; mode <= 5; ++mode) {
        for (const double factor : {1.0, 0.0, -1.0, 1000.0, infinity, notANumber}) {
            const ControlTaper any = taper(mode, 1.0, 10.0, factor);
            EXPECT_FALSE(std::isnan(any.plainAt(notANumber))) << mode << " " << factor;
            EXPECT_FALSE(std::isnan(any.plainAt(0.5))) << mode << " " << factor;
            EXPECT_FALSE(std::isnan(any.positionOf(notANumber))) << mode << " " << factor;
            EXPECT_FALSE(std::isnan(any.positionOf(infinity))) << mode << " " << factor;
            EXPECT_FALSE(std::isnan(any.positionOf(-infinity))) << mode << " " << factor;
        }
    }
}
