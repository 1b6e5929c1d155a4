// SPDX-License-Identifier: GPL-3.0-or-later
// What a set answers of its records' fields, and what it answers for indices it does not know.
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>

using parameterTest::outOfRange;

namespace {

struct ExpectedRow {
    const char* name;
    const char* unit;
    double minimum;
    double maximum;
    double defaultValue;
    std::int32_t taper;
    double step;
    double factor;
    FourCharCode id;
    std::uint32_t group;
    std::uint32_t subgroup;
    std::uint32_t option1;
    std::uint8_t option2;
    std::uint32_t unitCode;
    std::uint64_t reservedWord;
    double curve;
    std::uint8_t option3;
};

// clang-format off
constexpr std::array<ExpectedRow, 5> expectedRows{{
    {"Level",  "dB", -8.0,   8.0,  2.5, 0, 0.5,  1.0, 0x6C65766C, 0, 0, 10, 20, 13, 1,                    0.5,  30},
    {"Mode",   "m",   1.0,   3.0,  2.0, 2, 1.0,  2.0, 0x6D6F6465, 1, 1, 11, 21,  2, 2,                    0.25, 31},
    {"Time",   "s",   1.0, 100.0, 10.0, 1, 0.01, 3.0, 0x74696D65, 1, 0, 12, 22, 24, 3,                    3.0,  32},
    {"Switch", "x",   0.0,   1.0,  1.0, 2, 0.25, 4.0, 0x73776974, 1, 7, 13, 23,  8, 4,                    4.0,  33},
    {"Stray",  "%",   0.0,  10.0,  5.0, 3, 0.1,  5.0, 0x73747279, 9, 2, 14, 24,  3, 0x1122334455667788,   0.75, 34},
}};
// clang-format on

} // namespace

TEST(QMParameterSet, answersEveryFieldOfEveryRecord) {
    const parameterTest::Set set;
    ASSERT_EQ(set.parameterCount(), 5);
    for (std::int32_t i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        const ExpectedRow& row = expectedRows[static_cast<std::size_t>(i)];
        EXPECT_STREQ(set.namePointer(i), row.name);
        EXPECT_STREQ(set.unitPointer(i), row.unit);
        EXPECT_EQ(set.minimum(i), row.minimum);
        EXPECT_EQ(set.maximum(i), row.maximum);
        EXPECT_EQ(set.defaultValue(i), row.defaultValue);
        EXPECT_EQ(set.taper(i), row.taper);
        EXPECT_EQ(set.step(i), row.step);
        EXPECT_EQ(set.factor(i), row.factor);
        EXPECT_EQ(set.idOfIndex(i), row.id);
        EXPECT_EQ(set.groupIndex(i), row.group);
        EXPECT_EQ(set.subgroupIndex(i), row.subgroup);
        EXPECT_EQ(set.option1(i), row.option1);
        EXPECT_EQ(set.option2(i), row.option2);
        EXPECT_EQ(set.unitCode(i), row.unitCode);
        EXPECT_EQ(set.reservedWord(i), row.reservedWord);
        EXPECT_EQ(set.curve(i), row.curve);
        EXPECT_EQ(set.option3(i), row.option3);
        EXPECT_EQ(set.hostIndexOfIndex(i), i);
    }
}

TEST(QMParameterSet, answersTheRecordsPointersAndFunctions) {
    const parameterTest::Set set;
    EXPECT_EQ(set.valueNamesPointer(parameterTest::levelIndex), nullptr);
    const char* const* names = set.valueNamesPointer(parameterTest::modeIndex);
    ASSERT_NE(names, nullptr);
    EXPECT_STREQ(names[0], "Low");
    EXPECT_STREQ(names[2], "High");

    EXPECT_EQ(set.formatValueFunction(parameterTest::levelIndex), nullptr);
    EXPECT_EQ(set.formatValueWithUnitFunction(parameterTest::levelIndex), nullptr);
    EXPECT_EQ(set.formatValueFunction(parameterTest::switchIndex), &parameterTest::formatSwitch);
    EXPECT_EQ(set.formatValueWithUnitFunction(parameterTest::switchIndex),
              &parameterTest::formatSwitchWithUnit);

    EXPECT_EQ(set.changeHook(parameterTest::levelIndex), nullptr);
    EXPECT_EQ(set.changeHook(parameterTest::strayIndex), &parameterTest::hook);
}

TEST(QMParameterSet, givesNeutralAnswersForIndicesOutOfRange) {
    const parameterTest::Set set;
    for (const std::int32_t index : outOfRange) {
        SCOPED_TRACE(index);
        EXPECT_STREQ(set.namePointer(index), "");
        EXPECT_STREQ(set.unitPointer(index), "");
        EXPECT_EQ(set.minimum(index), 0.0);
        EXPECT_EQ(set.maximum(index), 0.0);
        EXPECT_EQ(set.defaultValue(index), 0.0);
        EXPECT_EQ(set.taper(index), 0);
        EXPECT_EQ(set.step(index), 0.0);
        EXPECT_EQ(set.factor(index), 0.0);
        EXPECT_EQ(set.idOfIndex(index), 0xFFFFFFFFu);
        EXPECT_EQ(set.groupIndex(index), 0u);
        EXPECT_EQ(set.subgroupIndex(index), 0u);
        EXPECT_EQ(set.option1(index), 0u);
        EXPECT_EQ(set.option2(index), 0u);
        EXPECT_EQ(set.unitCode(index), 0u);
        EXPECT_EQ(set.reservedWord(index), 0u);
        EXPECT_EQ(set.curve(index), 0.0);
        EXPECT_EQ(set.option3(index), 0u);
        EXPECT_EQ(set.valueNamesPointer(index), nullptr);
        EXPECT_EQ(set.formatValueFunction(index), nullptr);
        EXPECT_EQ(set.formatValueWithUnitFunction(index), nullptr);
        EXPECT_EQ(set.changeHook(index), nullptr);
        EXPECT_EQ(set.normalisedToPlain(index, 0.5), 0.0);
        EXPECT_EQ(set.plainToNormalised(index, 0.5), 0.0);
    }
}

TEST(QMParameterSet, theHostsIndexIsTheIndexEvenOutOfRange) {
    const parameterTest::Set set;
    for (const std::int32_t index : outOfRange)
        EXPECT_EQ(set.hostIndexOfIndex(index), index);
}

TEST(QMParameterSet, aChangedDefaultBelongsToThatSetAlone) {
    parameterTest::Set changed;
    const parameterTest::Set other;
    changed.setDefaultValue(parameterTest::timeIndex, 42.0);
    EXPECT_EQ(changed.defaultValue(parameterTest::timeIndex), 42.0);
    EXPECT_EQ(changed.defaultValue(parameterTest::levelIndex), 2.5);
    EXPECT_EQ(other.defaultValue(parameterTest::timeIndex), 10.0);
    EXPECT_EQ(parameterTest::parameters()[2].defaultValue, 10.0);
}

TEST(QMParameterSet, aDefaultOutOfRangeOfTheTableIsIgnored) {
    parameterTest::Set set;
    for (const std::int32_t index : outOfRange)
        set.setDefaultValue(index, 42.0);
    for (std::int32_t i = 0; i < set.parameterCount(); ++i)
        EXPECT_EQ(set.defaultValue(i), expectedRows[static_cast<std::size_t>(i)].defaultValue);
}

TEST(QMParameterSet, isConstructedAndAnswersItself) {
    parameterTest::Set set(2);
    EXPECT_TRUE(set.constructedFlag());
    EXPECT_EQ(set.asParameterSet(), &set);
    EXPECT_EQ(set.typeIndex(), 2);
}

TEST(QMParameterSet, anEmptyTableKnowsNothing) {
    const QM::QMParameterSet set({}, {}, {}, 1);
    EXPECT_EQ(set.parameterCount(), 0);
    EXPECT_EQ(set.meterCount(), 0);
    EXPECT_STREQ(set.namePointer(0), "");
    EXPECT_EQ(set.idOfIndex(0), 0xFFFFFFFFu);
    EXPECT_EQ(set.indexOfID(fourCharCode("levl")), -1);
}

TEST(QMParameterSet, theFrameworksOwnSetMakesPlainValuesAtTheUsualRate) {
    parameterTest::Set set;
    const std::unique_ptr<QM::QMParameterValues> values = set.createParameterValues();
    ASSERT_NE(values, nullptr);
    EXPECT_EQ(&values->parameterSet(), &set);
    EXPECT_EQ(values->sampleRate(), 44100.0);
    EXPECT_EQ(values->getValue(parameterTest::timeIndex), 10.0);
}
