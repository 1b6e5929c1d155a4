// SPDX-License-Identifier: GPL-3.0-or-later
// The mapping between plain and normalised values, against values worked out with 50 decimal
// digits:
//   linear       n = (v - min) / (max - min)
//   logarithmic  n = ln((v - min) k + 1) / ln((max - min) k + 1), v the inverse of it
#include "plugin-model/ParameterTaper.h"

#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using QM::normalisedToPlain;
using QM::plainToNormalised;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

NoxPlugInParameter record(std::int32_t taper, double minimum, double maximum, double step) {
    NoxPlugInParameter parameter{};
    parameter.taper = taper;
    parameter.minimum = minimum;
    parameter.maximum = maximum;
    parameter.step = step;
    return parameter;
}

const NoxPlugInParameter linear = record(0, -8.0, 8.0, 0.5);
const NoxPlugInParameter logarithmic = record(1, 1.0, 440.0, 0.01);
const NoxPlugInParameter stepped = record(2, 0.0, 4.0, 1.0);
const NoxPlugInParameter stretched = record(3, 1.0, 100.0, 0.01);

} // namespace

TEST(ParameterTaper, aLinearValueIsItsShareOfTheRange) {
    EXPECT_EQ(plainToNormalised(linear, -8.0), 0.0);
    EXPECT_EQ(plainToNormalised(linear, -4.0), 0.25);
    EXPECT_EQ(plainToNormalised(linear, 0.125), 0.5078125);
    EXPECT_EQ(plainToNormalised(linear, 8.0), 1.0);
    EXPECT_EQ(plainToNormalised(stepped, 3.0), 0.75);
    EXPECT_EQ(plainToNormalised(stepped, 0.5), 0.125);
}

TEST(ParameterTaper, aLogarithmicValueIsTheLogarithmsShareOfTheRange) {
    EXPECT_EQ(plainToNormalised(logarithmic, 1.0), 0.0);
    EXPECT_NEAR(plainToNormalised(logarithmic, 10.0), 0.37829313491976378869, 1e-15);
    EXPECT_NEAR(plainToNormalised(logarithmic, 220.0), 0.88612241923538965342, 1e-15);
    EXPECT_EQ(plainToNormalised(logarithmic, 440.0), 1.0);
}

TEST(ParameterTaper, theStretchPutsMostOfTheTravelNearTheMinimum) {
    EXPECT_EQ(plainToNormalised(stretched, 1.0), 0.0);
    EXPECT_NEAR(plainToNormalised(stretched, 1.001), 0.0602585496330625321, 1e-13);
    EXPECT_NEAR(plainToNormalised(stretched, 2.0), 0.60061059822203289216, 1e-15);
    EXPECT_NEAR(plainToNormalised(stretched, 50.0), 0.93885975292623234677, 1e-15);
    EXPECT_EQ(plainToNormalised(stretched, 100.0), 1.0);
}

TEST(ParameterTaper, aValueBelowTheRangeIsAtZero) {
    for (const NoxPlugInParameter& parameter : {linear, logarithmic, stepped, stretched}) {
        EXPECT_EQ(plainToNormalised(parameter, parameter.minimum - 0.001), 0.0);
        EXPECT_EQ(plainToNormalised(parameter, -1e300), 0.0);
        EXPECT_EQ(plainToNormalised(parameter, -infinity), 0.0);
    }
}

TEST(ParameterTaper, aValueAboveTheRangeIsAboveOne) {
    EXPECT_EQ(plainToNormalised(linear, 24.0), 2.0);
    EXPECT_EQ(plainToNormalised(stepped, 5.0), 1.25);
    EXPECT_NEAR(plainToNormalised(logarithmic, 880.0), 1.1138775807646103466, 1e-15);
    EXPECT_NEAR(plainToNormalised(stretched, 200.0), 1.0606960675325469624, 1e-15);
    for (const NoxPlugInParameter& parameter : {linear, logarithmic, stepped, stretched})
        EXPECT_EQ(plainToNormalised(parameter, infinity), infinity);
}

TEST(ParameterTaper, notANumberIsAtZeroLikeTheMinimumItIsStoredAs) {
    for (const NoxPlugInParameter& parameter : {linear, logarithmic, stepped, stretched})
        EXPECT_EQ(plainToNormalised(parameter, notANumber), 0.0);
}

TEST(ParameterTaper, aRangeWithoutExtentIsAtZero) {
    for (const std::int32_t taper : {0, 1, 2, 3})
        EXPECT_EQ(plainToNormalised(record(taper, 5.0, 5.0, 1.0), 5.0), 0.0) << taper;
}

TEST(ParameterTaper, aLinearPositionIsRoundedToWholeStepsHalvesAwayFromZero) {
    // 16 n - 8 is exact for these n: 0.25, 0.125, -0.25, -0.125, 0.75 and -0.75 before the
    // rounding.
    EXPECT_EQ(normalisedToPlain(linear, 0.515625), 0.5);
    EXPECT_EQ(normalisedToPlain(linear, 0.5078125), 0.0);
    EXPECT_EQ(normalisedToPlain(linear, 0.484375), -0.5);
    EXPECT_EQ(normalisedToPlain(linear, 0.4921875), 0.0);
    EXPECT_EQ(normalisedToPlain(linear, 0.546875), 1.0);
    EXPECT_EQ(normalisedToPlain(linear, 0.453125), -1.0);
    EXPECT_EQ(normalisedToPlain(linear, 0.0), -8.0);
    EXPECT_EQ(normalisedToPlain(linear, 1.0), 8.0);
}

TEST(ParameterTaper, stepsAreCountedFromZeroAndNotFromTheMinimum) {
    const NoxPlugInParameter offset = record(0, 0.25, 4.25, 1.0);
    EXPECT_EQ(normalisedToPlain(offset, 0.0), 0.0);
    EXPECT_EQ(normalisedToPlain(offset, 0.0625), 1.0);
    EXPECT_EQ(normalisedToPlain(offset, 1.0), 4.0);
}

TEST(ParameterTaper, aLinearParameterWithoutAStepIsNotRounded) {
    EXPECT_EQ(normalisedToPlain(record(0, -8.0, 8.0, 0.0), 0.5078125), 0.125);
    EXPECT_EQ(normalisedToPlain(record(0, -8.0, 8.0, -1.0), 0.5078125), 0.125);
}

TEST(ParameterTaper, aSteppedPositionIsAWholeNumber) {
    EXPECT_EQ(normalisedToPlain(stepped, 0.0), 0.0);
    EXPECT_EQ(normalisedToPlain(stepped, 0.124), 0.0);
    EXPECT_EQ(normalisedToPlain(stepped, 0.125), 1.0);
    EXPECT_EQ(normalisedToPlain(stepped, 0.375), 2.0);
    EXPECT_EQ(normalisedToPlain(stepped, 0.7), 3.0);
    EXPECT_EQ(normalisedToPlain(stepped, 1.0), 4.0);
    EXPECT_EQ(normalisedToPlain(record(2, 0.0, 4.0, 0.0), 0.125), 1.0);
}

TEST(ParameterTaper, aSteppedPositionIsRoundedToItsStepFirst) {
    // 0.5 is nearest to 1 x 0.4, and 0.4 is nearest to 0; 0.5 alone would have been 1.
    EXPECT_EQ(normalisedToPlain(record(2, 0.0, 1.0, 0.4), 0.5), 0.0);
    EXPECT_EQ(normalisedToPlain(record(2, -3.0, 3.0, 1.0), 0.25), -2.0); // -1.5
    EXPECT_EQ(normalisedToPlain(record(2, -3.0, 3.0, 1.0), 0.75), 2.0);  // 1.5
}

TEST(ParameterTaper, aLogarithmicPositionIsNotRounded) {
    EXPECT_EQ(normalisedToPlain(logarithmic, 0.0), 1.0);
    EXPECT_NEAR(normalisedToPlain(logarithmic, 0.25), 4.5799756509618073449, 1e-14);
    EXPECT_NEAR(normalisedToPlain(logarithmic, 0.5), 20.97617696340303094, 1e-13);
    EXPECT_NEAR(normalisedToPlain(logarithmic, 0.875), 205.59904446948876839, 1e-12);
    EXPECT_NEAR(normalisedToPlain(logarithmic, 1.0), 440.0, 1e-12);
    EXPECT_EQ(normalisedToPlain(stretched, 0.0), 1.0);
    EXPECT_NEAR(normalisedToPlain(stretched, 0.25), 1.016738214215398009, 1e-14);
    EXPECT_NEAR(normalisedToPlain(stretched, 0.5), 1.313644243551348004, 1e-14);
    EXPECT_NEAR(normalisedToPlain(stretched, 0.875), 24.505319439861390813, 1e-12);
    EXPECT_NEAR(normalisedToPlain(stretched, 1.0), 100.0, 1e-12);
}

TEST(ParameterTaper, aPositionOutsideTheRangeIsCarriedOn) {
    EXPECT_EQ(normalisedToPlain(linear, -0.25), -12.0);
    EXPECT_EQ(normalisedToPlain(linear, 1.5), 16.0);
    EXPECT_EQ(normalisedToPlain(stepped, 1.5), 6.0);
    EXPECT_NEAR(normalisedToPlain(logarithmic, -0.5), 0.047673129462279615772, 1e-15);
    EXPECT_NEAR(normalisedToPlain(logarithmic, 1.25), 2015.1892864231952317, 1e-10);
    EXPECT_NEAR(normalisedToPlain(stretched, -0.5), 0.9990031781925793815, 1e-14);
    EXPECT_NEAR(normalisedToPlain(stretched, 1.25), 1757.0999455386182889, 1e-10);
}

TEST(ParameterTaper, aPositionThatIsNotANumberStaysNotANumber) {
    for (const NoxPlugInParameter& parameter : {linear, logarithmic, stepped, stretched})
        EXPECT_TRUE(std::isnan(normalisedToPlain(parameter, notANumber)));
}

TEST(ParameterTaper, infinitePositionsGoToTheEndsOfTheirTaper) {
    EXPECT_EQ(normalisedToPlain(linear, infinity), infinity);
    EXPECT_EQ(normalisedToPlain(linear, -infinity), -infinity);
    EXPECT_EQ(normalisedToPlain(logarithmic, infinity), infinity);
    // The power goes to 0: (0 - 1) / k + min.
    EXPECT_EQ(normalisedToPlain(logarithmic, -infinity), 0.0);
    EXPECT_EQ(normalisedToPlain(stretched, -infinity), 0.999);
}

TEST(ParameterTaper, thereAndBackIsTheSamePlace) {
    for (const NoxPlugInParameter& parameter : {linear, logarithmic, stepped, stretched}) {
        for (int i = 0; i <= 4; ++i) {
            const double plain =
                std::round(parameter.minimum + (parameter.maximum - parameter.minimum) * i / 4.0);
            EXPECT_NEAR(normalisedToPlain(parameter, plainToNormalised(parameter, plain)), plain,
                        1e-11);
        }
    }
}
