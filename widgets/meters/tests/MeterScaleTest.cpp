// SPDX-License-Identifier: GPL-3.0-or-later
// The scales' names, order and marks.
#include "widgets/meters/MeterScale.h"

#include <gtest/gtest.h>

#include <string>

TEST(MeterScale, namesAndOrder) {
    const std::vector<std::string> expected{"UK PPM",  "Test",    "EBU PPM",    "IEEE PPM",
                                            "IEEE VU", "DIN PPM", "Nordic PPM", "Digital PPM"};
    std::vector<std::string> names;
    for (const MeterScale& scale : meterScales())
        names.emplace_back(scale.name);
    EXPECT_EQ(names, expected);
}

TEST(MeterScale, digitalHasEveryDecibelDownToTwentyAndSixMarksBelow) {
    const std::vector<std::pair<int, std::string>> expected{
        {0, "0"},     {-1, ""},     {-2, ""},     {-3, ""},     {-4, ""},     {-5, "-5"},
        {-6, ""},     {-7, ""},     {-8, ""},     {-9, ""},     {-10, "-10"}, {-11, ""},
        {-12, ""},    {-13, ""},    {-14, ""},    {-15, "-15"}, {-16, ""},    {-17, ""},
        {-18, ""},    {-19, ""},    {-20, "-20"}, {-25, "-25"}, {-30, "-30"}, {-35, "-35"},
        {-40, "-40"}, {-50, "-50"}, {-60, "-60"}};
    const std::vector<MeterMark>& marks = meterScales().back().marks;
    ASSERT_EQ(marks.size(), 27u);
    for (std::size_t i = 0; i < marks.size(); ++i) {
        EXPECT_EQ(marks[i].decibels, expected[i].first);
        EXPECT_EQ(marks[i].label, expected[i].second);
    }
}

TEST(MeterScale, aMarksLevelIsTenToATenthOfItsDecibels) {
    EXPECT_FLOAT_EQ((MeterMark{0.0, ""}.level()), 1.0f);
    EXPECT_FLOAT_EQ((MeterMark{-10.0, ""}.level()), 0.1f);
    EXPECT_FLOAT_EQ((MeterMark{-3.0, ""}.level()), 0.501187234f);
    EXPECT_FLOAT_EQ((MeterMark{-60.0, ""}.level()), 1e-6f);
}

TEST(MeterScale, everyScaleGoesDownFromItsFirstMarkAndHasLabels) {
    for (const MeterScale& scale : meterScales()) {
        ASSERT_GE(scale.marks.size(), 7u) << scale.name;
        EXPECT_NE(*scale.marks.front().label, '\0') << scale.name;
        EXPECT_LE(scale.marks.front().decibels, 0.0) << scale.name;
        for (std::size_t i = 1; i < scale.marks.size(); ++i)
            EXPECT_LT(scale.marks[i].decibels, scale.marks[i - 1].decibels) << scale.name;
    }
}

TEST(MeterScale, lineUpLevelsStandWhereTheirStandardsPutThem) {
    const auto decibelsOf = [](std::size_t scale, const std::string& label) {
        for (const MeterMark& mark : meterScales()[scale].marks) {
            if (mark.label == label)
                return mark.decibels;
        }
        return 1.0;
    };
    EXPECT_EQ(decibelsOf(0, "4"), -18.0);
    EXPECT_EQ(decibelsOf(2, "0"), -18.0);
    EXPECT_EQ(decibelsOf(4, "0"), -20.0);
    EXPECT_EQ(decibelsOf(5, "0"), -9.0);
    EXPECT_EQ(decibelsOf(6, "TEST"), -18.0);
}
