// SPDX-License-Identifier: GPL-3.0-or-later
// Names, units and groups as texts: what is copied, how it is cut, and how long names are built.
#include "plugin-model/tests/ParameterTestTable.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

using parameterTest::outOfRange;
using parameterTest::textWritten;
using parameterTest::untouched;

namespace {

class ParameterSetNames : public testing::Test {
protected:
    std::string name(std::int32_t index, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.copyName(index, b, n); }, size);
    }

    std::string unit(std::int32_t index, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.copyUnit(index, b, n); }, size);
    }

    std::string longName(std::int32_t index, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.longName(index, b, n); }, size);
    }

    std::string groupName(std::int32_t group, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.copyGroupName(group, b, n); }, size);
    }

    std::string subgroupCopy(std::int32_t group, std::int32_t subgroup, std::size_t size = 64) {
        return textWritten([&](char* b, std::size_t n) { set.subgroupName(group, subgroup, b, n); },
                           size);
    }

    const parameterTest::Set set;
};

} // namespace

TEST_F(ParameterSetNames, areCopied) {
    EXPECT_EQ(name(parameterTest::levelIndex), "Level");
    EXPECT_EQ(name(parameterTest::strayIndex), "Stray");
    EXPECT_EQ(unit(parameterTest::levelIndex), "dB");
    EXPECT_EQ(unit(parameterTest::strayIndex), "%");
}

TEST_F(ParameterSetNames, areCutToTheBufferAndTerminated) {
    EXPECT_EQ(name(parameterTest::levelIndex, 6), "Level");
    EXPECT_EQ(name(parameterTest::levelIndex, 5), "Leve");
    EXPECT_EQ(name(parameterTest::levelIndex, 1), "");
    EXPECT_EQ(unit(parameterTest::levelIndex, 2), "d");
    EXPECT_EQ(longName(parameterTest::modeIndex, 10), "Filter Up");
    EXPECT_EQ(groupName(1, 4), "Fil");
    EXPECT_EQ(subgroupCopy(1, 1, 3), "Up");
}

TEST_F(ParameterSetNames, aBufferOfNoSizeIsLeftAlone) {
    EXPECT_EQ(name(parameterTest::levelIndex, 0), untouched);
    EXPECT_EQ(unit(parameterTest::levelIndex, 0), untouched);
    EXPECT_EQ(longName(parameterTest::levelIndex, 0), untouched);
    EXPECT_EQ(groupName(1, 0), untouched);
    EXPECT_EQ(subgroupCopy(1, 1, 0), untouched);
}

TEST_F(ParameterSetNames, noBufferIsNoFault) {
    set.copyName(0, nullptr, 8);
    set.copyUnit(0, nullptr, 8);
    set.longName(0, nullptr, 8);
    set.copyGroupName(1, nullptr, 8);
    set.copyMeterName(0, nullptr, 8);
    EXPECT_STREQ(set.subgroupName(1, 1, nullptr, 8), "Upper");
}

TEST_F(ParameterSetNames, areEmptyForIndicesOutOfRange) {
    for (const std::int32_t index : outOfRange) {
        SCOPED_TRACE(index);
        EXPECT_EQ(name(index), "");
        EXPECT_EQ(unit(index), "");
        EXPECT_EQ(longName(index), "");
        EXPECT_EQ(groupName(index), "");
        EXPECT_EQ(subgroupCopy(index, 0), "");
        EXPECT_EQ(subgroupCopy(1, index), "");
        EXPECT_STREQ(set.subgroupName(index, 0, nullptr, 0), "");
        EXPECT_STREQ(set.subgroupName(1, index, nullptr, 0), "");
    }
}

TEST_F(ParameterSetNames, groupsAndSubgroupsAnswerTheirNames) {
    EXPECT_EQ(groupName(0), "");
    EXPECT_EQ(groupName(1), "Filter");
    EXPECT_EQ(groupName(2), "");
    EXPECT_EQ(subgroupCopy(0, 0), "Main");
    EXPECT_EQ(subgroupCopy(0, 1), "");
    EXPECT_EQ(subgroupCopy(1, 0), "");
    EXPECT_EQ(subgroupCopy(1, 1), "Upper");
    EXPECT_EQ(subgroupCopy(1, 2), "");
}

TEST_F(ParameterSetNames, aSubgroupIsAnsweredWhetherOrNotItIsCopied) {
    EXPECT_STREQ(set.subgroupName(1, 1, nullptr, 0), "Upper");
    std::array<char, 4> small{};
    EXPECT_STREQ(set.subgroupName(1, 1, small.data(), small.size()), "Upper");
    EXPECT_STREQ(small.data(), "Upp");
}

TEST_F(ParameterSetNames, theLongNameIsTheNameAloneInAGroupWithoutName) {
    EXPECT_EQ(longName(parameterTest::levelIndex), "Level");
}

TEST_F(ParameterSetNames, theLongNameBeginsWithGroupAndSubgroup) {
    EXPECT_EQ(longName(parameterTest::modeIndex), "Filter Upper Mode");
}

TEST_F(ParameterSetNames, theLongNameLeavesAnEmptySubgroupOut) {
    EXPECT_EQ(longName(parameterTest::timeIndex), "Filter Time");
}

TEST_F(ParameterSetNames, theLongNameLeavesAnUnknownSubgroupOrGroupOut) {
    EXPECT_EQ(longName(parameterTest::switchIndex), "Filter Switch");
    EXPECT_EQ(longName(parameterTest::strayIndex), "Stray");
}
