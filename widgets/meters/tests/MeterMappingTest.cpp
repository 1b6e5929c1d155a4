// SPDX-License-Identifier: GPL-3.0-or-later
// Where levels are on a meter's length.
#include "widgets/meters/MeterMapping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double exact = 1e-9;

MeterMapping mappingOf(MeterMappingMode mode, double minimum, double maximum, double curve) {
    return {mode, minimum, maximum, curve};
}

} // namespace

TEST(MeterMapping, isCompressedUnlessToldOtherwiseWithFullScaleAtTheEnd) {
    const MeterMapping mapping;
    EXPECT_EQ(mapping.mode, MeterMappingMode::compressed);
    EXPECT_NEAR(mapping.fractionOf(1.0), 1.0, exact);
    EXPECT_EQ(mapping.fractionOf(0.0), 0.0);
    // -10 dB: log10(0.1 * 9 + 1) = log10(1.9)
    EXPECT_NEAR(mapping.fractionOf(0.1), 0.278753601, exact);
    // log10(1.09), log10(5.5)
    EXPECT_NEAR(mapping.fractionOf(0.01), 0.0374264979, exact);
    EXPECT_NEAR(mapping.fractionOf(0.5), 0.740362689, exact);
}

TEST(MeterMapping, inDecibelsRunsFromBoundToBoundAlongItsCurve) {
    const auto straight = mappingOf(MeterMappingMode::decibel, -60.0, 0.0, 1.0);
    EXPECT_EQ(straight.fractionOf(0.0), 0.0);
    EXPECT_EQ(straight.fractionOf(0.001), 0.0);
    // 20 log10(0.1) = -20, a third down
    EXPECT_NEAR(straight.fractionOf(0.1), 2.0 / 3.0, exact);
    EXPECT_EQ(straight.fractionOf(1.0), 1.0);
    EXPECT_EQ(straight.fractionOf(7.0), 1.0);
    const auto bent = mappingOf(MeterMappingMode::decibel, -60.0, 0.0, 2.0);
    EXPECT_NEAR(bent.fractionOf(0.1), 4.0 / 9.0, exact);
}

TEST(MeterMapping, logarithmicRunsBetweenLevels) {
    const auto mapping = mappingOf(MeterMappingMode::logarithmic, 0.001, 2.0, 0.0);
    EXPECT_EQ(mapping.fractionOf(0.0009), 0.0);
    EXPECT_NEAR(mapping.fractionOf(0.001), 0.0, exact);
    // log10(1000) / log10(2000) = 3 / 3.301029996
    EXPECT_NEAR(mapping.fractionOf(1.0), 0.908807252, exact);
    EXPECT_NEAR(mapping.fractionOf(2.0), 1.0, exact);
    EXPECT_EQ(mapping.fractionOf(2.1), 1.0);
}

TEST(MeterMapping, neverLeavesTheMeter) {
    for (const auto mode :
         {MeterMappingMode::decibel, MeterMappingMode::compressed, MeterMappingMode::logarithmic}) {
        const auto mapping = mappingOf(mode, 0.001, 2.0, 9.0);
        for (const double level :
             {-1.0, 0.0, 1e-300, 0.5, 1.0, 1e30, std::numeric_limits<double>::infinity(),
              std::numeric_limits<double>::quiet_NaN()}) {
            const double fraction = mapping.fractionOf(level);
            EXPECT_GE(fraction, 0.0) << level;
            EXPECT_LE(fraction, 1.0) << level;
        }
        EXPECT_EQ(mapping.fractionOf(std::numeric_limits<double>::quiet_NaN()), 0.0);
    }
}
