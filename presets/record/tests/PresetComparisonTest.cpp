// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/PresetComparison.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr FourCharCode gain = fourCharCode("gain");
constexpr FourCharCode wet = fourCharCode("wetd");

QMGenericPreset recordWith(double value) {
    QMGenericPreset record;
    record.values = {{gain, value}};
    return record;
}

bool equalValues(double a, double b) {
    const bool forwards = presetsAreEqual(recordWith(a), recordWith(b));
    EXPECT_EQ(forwards, presetsAreEqual(recordWith(b), recordWith(a)));
    return forwards;
}

} // namespace

TEST(PresetComparison, smallValuesAreEqualWithinAHundredThousandth) {
    EXPECT_TRUE(equalValues(0.3, 0.3 + 5e-6));
    EXPECT_TRUE(equalValues(0.0, 9.9e-6));
    EXPECT_FALSE(equalValues(0.0, 1e-5)); // the tolerance itself is outside
    EXPECT_FALSE(equalValues(0.3, 0.30002));
}

TEST(PresetComparison, largeValuesAreEqualWithinAHundredThousandthOfTheirSum) {
    // |1000| + |1000.015| = 2000.015, times 1e-5: 0.02000015.
    EXPECT_TRUE(equalValues(1000.0, 1000.015));
    EXPECT_FALSE(equalValues(1000.0, 1000.03));
    EXPECT_TRUE(equalValues(-1000.0, -1000.015));
}

TEST(PresetComparison, theToleranceChangesWhereTheSumPassesOne) {
    // Sum 0.999988, so the tolerance is 1e-5.
    EXPECT_TRUE(equalValues(0.49999, 0.499998));
    // Sum 20: tolerance 2e-4.
    EXPECT_TRUE(equalValues(10.0, 10.00019));
    EXPECT_FALSE(equalValues(10.0, 10.00021));
}

TEST(PresetComparison, valuesOfOppositeSignsAreFarApart) {
    EXPECT_FALSE(equalValues(1000.0, -1000.0));
    EXPECT_TRUE(equalValues(4e-6, -4e-6));
    EXPECT_TRUE(equalValues(0.0, -0.0));
}

TEST(PresetComparison, notANumberEqualsNothing) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(equalValues(nan, nan));
    EXPECT_FALSE(equalValues(nan, 0.0));
}

TEST(PresetComparison, infinityEqualsItselfAlone) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(equalValues(infinity, infinity));
    EXPECT_FALSE(equalValues(infinity, -infinity));
    EXPECT_FALSE(equalValues(infinity, 1e300));
}

TEST(PresetComparison, hugeValuesEqualThemselves) {
    // Their sum is infinite; so is the tolerance then.
    EXPECT_TRUE(equalValues(1.7e308, 1.7e308));
}

TEST(PresetComparison, valuesThatOneSideAloneHasDoNotCount) {
    QMGenericPreset both = recordWith(1.0);
    both.values[wet] = 2.0;
    EXPECT_TRUE(presetsAreEqual(recordWith(1.0), both));
    EXPECT_TRUE(presetsAreEqual(both, recordWith(1.0)));
    EXPECT_TRUE(presetsAreEqual(recordWith(1.0), QMGenericPreset()));
    EXPECT_TRUE(presetsAreEqual(QMGenericPreset(), recordWith(1.0)));
}

TEST(PresetComparison, everyCommonValueCounts) {
    QMGenericPreset first = recordWith(1.0);
    first.values[wet] = 2.0;
    QMGenericPreset second = recordWith(1.0);
    second.values[wet] = 3.0;
    EXPECT_FALSE(presetsAreEqual(first, second));
}

TEST(PresetComparison, ignoredValuesDoNotCount) {
    QMGenericPreset first = recordWith(1.0);
    first.values[wet] = 2.0;
    QMGenericPreset second = recordWith(1.0);
    second.values[wet] = 3.0;
    EXPECT_TRUE(presetsAreEqual(first, second, {wet}));
    EXPECT_FALSE(presetsAreEqual(first, second, {gain}));
}

TEST(PresetComparison, differentValuesTagsDiffer) {
    QMGenericPreset tagged = recordWith(1.0);
    tagged.valuesTag = 1;
    EXPECT_FALSE(presetsAreEqual(recordWith(1.0), tagged));
    EXPECT_FALSE(presetsAreEqual(recordWith(1.0), tagged, {gain}));
    EXPECT_TRUE(presetsAreEqual(tagged, tagged));
}

TEST(PresetComparison, namesCodesIdentifiersAndDocumentsDoNotCount) {
    QMGenericPreset other = recordWith(1.0);
    other.name = "other";
    other.manufacturerCode = 1;
    other.productCode = 2;
    other.variantCode = 3;
    other.uniqueId = 4;
    other.extension = {{"a", 1}};
    EXPECT_TRUE(presetsAreEqual(recordWith(1.0), other));
}
