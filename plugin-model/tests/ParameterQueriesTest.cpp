// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever has a set answers the set's questions as the set does, and neutrally without one.
#include "plugin-model/QMParameterQueries.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using parameterTest::Set;

class Owner : public QM::QMParameterQueries {
public:
    explicit Owner(const QM::IQMParameterSet* ownedSet)
        : set(ownedSet) {}

private:
    [[nodiscard]] const QM::IQMParameterSet* queriedSet() const override { return set; }

    const QM::IQMParameterSet* set;
};

constexpr std::size_t size = 64;

/// What a copying question leaves in a buffer that was filled before.
template <typename Question>
std::string textOf(Question question) {
    char buffer[size] = "untouched";
    question(buffer);
    return buffer;
}

} // namespace

TEST(ParameterQueries, answerNamesAndTextsAsTheSetDoes) {
    const Set set;
    const Owner owner(&set);
    ASSERT_EQ(owner.parameterCount(), parameterTest::count);
    for (std::int32_t i = -1; i <= parameterTest::count; ++i) {
        EXPECT_STREQ(owner.namePointer(i), set.namePointer(i));
        EXPECT_STREQ(owner.unitPointer(i), set.unitPointer(i));
        EXPECT_EQ(owner.groupIndex(i), set.groupIndex(i));
        EXPECT_EQ(owner.subgroupIndex(i), set.subgroupIndex(i));
        EXPECT_EQ(owner.valueNamesPointer(i), set.valueNamesPointer(i));
        EXPECT_EQ(owner.formatValueFunction(i), set.formatValueFunction(i));
        EXPECT_EQ(owner.formatValueWithUnitFunction(i), set.formatValueWithUnitFunction(i));
        EXPECT_EQ(textOf([&](char* text) { owner.copyName(i, text, size); }),
                  textOf([&](char* text) { set.copyName(i, text, size); }));
        EXPECT_EQ(textOf([&](char* text) { owner.copyUnit(i, text, size); }),
                  textOf([&](char* text) { set.copyUnit(i, text, size); }));
        EXPECT_EQ(textOf([&](char* text) { owner.longName(i, text, size); }),
                  textOf([&](char* text) { set.longName(i, text, size); }));
        EXPECT_EQ(textOf([&](char* text) { owner.formatValueText(i, 1.5, text, size); }),
                  textOf([&](char* text) { set.formatValueText(i, 1.5, text, size); }));
        EXPECT_EQ(textOf([&](char* text) { owner.formatValueTextWithUnit(i, 1.5, text, size); }),
                  textOf([&](char* text) { set.formatValueTextWithUnit(i, 1.5, text, size); }));
        EXPECT_EQ(textOf([&](char* text) { owner.copyGroupName(i, text, size); }),
                  textOf([&](char* text) { set.copyGroupName(i, text, size); }));
        EXPECT_STREQ(owner.subgroupName(0, i, nullptr, 0), set.subgroupName(0, i, nullptr, 0));
    }
}

TEST(ParameterQueries, answerNumbersAsTheSetDoes) {
    const Set set;
    const Owner owner(&set);
    for (std::int32_t i = -1; i <= parameterTest::count; ++i) {
        EXPECT_EQ(owner.normalisedToPlain(i, 0.3), set.normalisedToPlain(i, 0.3));
        EXPECT_EQ(owner.plainToNormalised(i, 1.7), set.plainToNormalised(i, 1.7));
        EXPECT_EQ(owner.maximum(i), set.maximum(i));
        EXPECT_EQ(owner.minimum(i), set.minimum(i));
        EXPECT_EQ(owner.defaultValue(i), set.defaultValue(i));
        EXPECT_EQ(owner.taper(i), set.taper(i));
        EXPECT_EQ(owner.step(i), set.step(i));
        EXPECT_EQ(owner.factor(i), set.factor(i));
        EXPECT_EQ(owner.option2(i), set.option2(i));
        EXPECT_EQ(owner.option3(i), set.option3(i));
        EXPECT_EQ(owner.unitCode(i), set.unitCode(i));
        EXPECT_EQ(owner.reservedWord(i), set.reservedWord(i));
        EXPECT_EQ(owner.curve(i), set.curve(i));
        EXPECT_EQ(owner.idOfIndex(i), set.idOfIndex(i));
        EXPECT_EQ(owner.indexOfID(set.idOfIndex(i)), set.indexOfID(set.idOfIndex(i)));
    }
    EXPECT_TRUE(owner.constructedFlag());
    EXPECT_EQ(&owner.idListMap(), &set.idListMap());
}

TEST(ParameterQueries, compareCodesWithTheSetsOwnPair) {
    Set set;
    set.setFirstCode(fourCharCode("frst"));
    set.setSecondCode(fourCharCode("scnd"));
    const Owner owner(&set);
    EXPECT_TRUE(owner.matchesFirstCode(fourCharCode("frst")));
    EXPECT_FALSE(owner.matchesFirstCode(fourCharCode("scnd")));
    EXPECT_TRUE(owner.matchesSecondCode(fourCharCode("scnd")));
    EXPECT_FALSE(owner.matchesSecondCode(fourCharCode("frst")));
}

TEST(ParameterQueries, areAnsweredNeutrallyWithoutASet) {
    const Owner owner(nullptr);
    EXPECT_EQ(owner.parameterCount(), 0);
    EXPECT_STREQ(owner.namePointer(0), "");
    EXPECT_STREQ(owner.unitPointer(0), "");
    EXPECT_STREQ(owner.subgroupName(0, 0, nullptr, 0), "");
    EXPECT_EQ(textOf([&](char* text) { owner.copyName(0, text, size); }), "");
    EXPECT_EQ(textOf([&](char* text) { owner.formatValueText(0, 1.0, text, size); }), "");
    EXPECT_EQ(owner.maximum(0), 0.0);
    EXPECT_EQ(owner.normalisedToPlain(0, 0.5), 0.0);
    EXPECT_EQ(owner.plainToNormalised(0, 0.5), 0.0);
    EXPECT_EQ(owner.idOfIndex(0), 0xFFFFFFFFu);
    EXPECT_EQ(owner.indexOfID(fourCharCode("gain")), -1);
    EXPECT_EQ(owner.valueNamesPointer(0), nullptr);
    EXPECT_TRUE(owner.idListMap().empty());
    EXPECT_FALSE(owner.constructedFlag());
    EXPECT_FALSE(owner.matchesFirstCode(0));
    EXPECT_FALSE(owner.matchesSecondCode(0));
}
