// SPDX-License-Identifier: GPL-3.0-or-later
// The product's set: which settings it takes for its own, and what values objects it makes.
#include "brolt/model/QMBrolt_ParametersSet.h"

#include "brolt/model/QMBrolt_ParameterValues.h"

#include <gtest/gtest.h>

namespace {

constexpr FourCharCode maker = 0x514D4C20;   // 'QML '
constexpr FourCharCode product = 0x42524C54; // 'BRLT'
constexpr FourCharCode mono = 0x424C5431;    // 'BLT1'
constexpr FourCharCode stereo = 0x424C5432;  // 'BLT2'

} // namespace

TEST(QMBrolt_ParametersSet, acceptsSettingsOfTheProduct) {
    for (const std::int32_t type : {1, 2}) {
        const QM::QMBrolt_ParametersSet set(type);
        EXPECT_EQ(set.typeIndex(), type);
        EXPECT_TRUE(set.constructedFlag());
        EXPECT_TRUE(set.acceptsPair(maker, product));
        EXPECT_FALSE(set.acceptsPair(maker, mono));
        EXPECT_FALSE(set.acceptsPair(maker, stereo));
        EXPECT_FALSE(set.acceptsPair(product, maker));
        EXPECT_EQ(set.firstCode(), 0u);
        EXPECT_EQ(set.secondCode(), 0u);
    }
}

TEST(QMBrolt_ParametersSet, acceptsSettingsOfItsTypeOnceTheTypeToldItsCode) {
    QM::QMBrolt_ParametersSet set(2);
    set.setFirstCode(maker);
    set.setSecondCode(stereo);
    EXPECT_TRUE(set.acceptsPair(maker, stereo));
    EXPECT_TRUE(set.acceptsPair(maker, product));
    EXPECT_FALSE(set.acceptsPair(maker, mono));
}

TEST(QMBrolt_ParametersSet, hasTheMetersOfItsType) {
    const QM::QMBrolt_ParametersSet monoSet(1);
    EXPECT_EQ(monoSet.meterCount(), 2);
    EXPECT_EQ(monoSet.indexOfMeterID(fourCharCode("out ")), 0);
    EXPECT_EQ(monoSet.indexOfMeterID(fourCharCode("ptch")), 1);
    EXPECT_EQ(monoSet.indexOfMeterID(fourCharCode("out2")), -1);
    const QM::QMBrolt_ParametersSet stereoSet(2);
    EXPECT_EQ(stereoSet.meterCount(), 3);
    EXPECT_EQ(stereoSet.indexOfMeterID(fourCharCode("out2")), 1);
    EXPECT_EQ(stereoSet.indexOfMeterID(fourCharCode("ptch")), 2);
}

TEST(QMBrolt_ParametersSet, hasNoIdentifierLists) {
    EXPECT_TRUE(QM::QMBrolt_ParametersSet(1).idListMap().empty());
}

TEST(QMBrolt_ParametersSet, hasTheSubgroupMain) {
    const QM::QMBrolt_ParametersSet set(1);
    EXPECT_STREQ(set.subgroupName(0, 0, nullptr, 0), "Main");
    EXPECT_STREQ(set.subgroupName(0, 1, nullptr, 0), "");
    EXPECT_STREQ(set.subgroupName(1, 0, nullptr, 0), "");
}

TEST(QMBrolt_ParametersSet, makesTheProductsValues) {
    for (const std::int32_t type : {1, 2}) {
        QM::QMBrolt_ParametersSet set(type);
        const std::unique_ptr<QM::QMParameterValues> values = set.createParameterValues();
        const auto* own = dynamic_cast<const QM::QMBrolt_ParameterValues*>(values.get());
        ASSERT_NE(own, nullptr);
        EXPECT_EQ(own->sampleRate(), 44100.0);
        EXPECT_EQ(own->manufacturerCode(), maker);
        EXPECT_EQ(own->productCode(), product);
        EXPECT_EQ(own->typeIndex(), type);
        EXPECT_EQ(&values->parameterSet(), &set);
        EXPECT_TRUE(values->enabled());
        EXPECT_EQ(values->hostStatus(), 1024u);
        const double defaults[] = {0, 100, 60, 1, 0, 200, 120, 1, -12, 2, 140, 2, 140, 100, 0};
        for (std::int32_t i = 0; i < 15; ++i)
            EXPECT_EQ(values->getValue(i), defaults[i]) << i;
    }
}
