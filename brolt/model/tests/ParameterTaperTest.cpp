// SPDX-License-Identifier: GPL-3.0-or-later
// The tapers of all fifteen parameters, against values worked out with 50 decimal digits:
//   switches, wet/dry, output gain  n = (v - min) / (max - min)
//   frequencies                     n = ln(v) / ln(440), since (v - 1) + 1 = v
//   mix gains                       n = ln((v + 60) 1000 + 1) / ln(66001)
//   attack times                    n = ln((v - 1) 1000 + 1) / ln(99001)
//   release times                   n = ln((v - 5) 1000 + 1) / ln(995001)
#include "brolt/model/QMBrolt_ParametersSet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

struct Point {
    double plain;
    double normalised;
};

struct Taper {
    std::int32_t index;
    const char* id;
    Point points[5]; ///< minimum, inner, default, inner, maximum
};

// clang-format off
constexpr Taper tapers[] = {
    { 0, "mbyp", {{  0.0, 0.0}, {  0.25,   0.25},                    {  0.0, 0.0},                     {  0.75, 0.75},                   {   1.0, 1.0}}},
    { 1, "afre", {{  1.0, 0.0}, { 10.0,    0.37829313491976378869},  {100.0, 0.75658626983952757738},  {220.0,  0.88612241923538965342}, { 440.0, 1.0}}},
    { 2, "sfre", {{  1.0, 0.0}, { 55.0,    0.65836725770616896027},  { 60.0, 0.672662410869126383},    {330.0,  0.95273653365553155458}, { 440.0, 1.0}}},
    { 3, "osc1", {{  0.0, 0.0}, {  0.125,  0.125},                   {  1.0, 1.0},                     {  0.5,  0.5},                    {   1.0, 1.0}}},
    { 4, "mgan", {{-60.0, 0.0}, {-48.0,    0.84638960053402614294},  {  0.0, 0.991411641601884733},    { -6.0,  0.9819176678015024933},  {   6.0, 1.0}}},
    { 5, "dafr", {{  1.0, 0.0}, {  2.0,    0.11387758076461034658},  {200.0, 0.87046385060413792396},  { 20.0,  0.49217071568437413527}, { 440.0, 1.0}}},
    { 6, "dsfr", {{  1.0, 0.0}, {  3.5,    0.20581720610693084969},  {120.0, 0.78653999163373672957},  {439.0,  0.99962618727664171072}, { 440.0, 1.0}}},
    { 7, "osc2", {{  0.0, 0.0}, {  0.4,    0.4},                     {  1.0, 1.0},                     {  0.6,  0.6},                    {   1.0, 1.0}}},
    { 8, "dmgn", {{-60.0, 0.0}, {-59.999,  0.062460180608677448732}, {-12.0, 0.97130433010764291231},  {  3.0,  0.99580810021940744514}, {   6.0, 1.0}}},
    { 9, "attk", {{  1.0, 0.0}, {  1.5,    0.54043885310015324196},  {  2.0, 0.60061059822203289216},  { 50.0,  0.93885975292623234677}, { 100.0, 1.0}}},
    {10, "rlse", {{  5.0, 0.0}, { 10.0,    0.61673319395378324361},  {140.0, 0.85536644596957782924},  {500.0,  0.94944542131717774355}, {1000.0, 1.0}}},
    {11, "patt", {{  1.0, 0.0}, {  1.001,  0.0602585496330625321},   {  2.0, 0.60061059822203289216},  { 99.0,  0.9991174154839875873},  { 100.0, 1.0}}},
    {12, "prls", {{  5.0, 0.0}, {  5.25,   0.40009075201871582792},  {140.0, 0.85536644596957782924},  {750.0,  0.97904795611807957414}, {1000.0, 1.0}}},
    {13, "wetd", {{  0.0, 0.0}, { 12.34,   0.1234},                  {100.0, 1.0},                     { 37.5,  0.375},                  { 100.0, 1.0}}},
    {14, "gain", {{-24.0, 0.0}, {-23.99,   0.00020833333333333333},  {  0.0, 0.5},                     {  6.5,  0.63541666666666666667}, {  24.0, 1.0}}},
};

// clang-format on

bool isSwitch(const Taper& taper) {
    return taper.index == 0 || taper.index == 3 || taper.index == 7;
}

class BroltTaper : public testing::Test {
protected:
    const QM::QMBrolt_ParametersSet set{1};
};

} // namespace

TEST_F(BroltTaper, plainValuesHaveTheirNormalisedPositions) {
    for (const Taper& taper : tapers) {
        SCOPED_TRACE(taper.id);
        ASSERT_EQ(fourCharText(set.idOfIndex(taper.index)), taper.id);
        for (const Point& point : taper.points) {
            // The third decimal of -59.999 and 1.001 is the whole travel there: the difference to
            // the minimum has only 12 or 13 of the number's 16 digits.
            EXPECT_NEAR(set.plainToNormalised(taper.index, point.plain), point.normalised, 1e-12)
                << point.plain;
        }
        EXPECT_EQ(set.plainToNormalised(taper.index, taper.points[0].plain), 0.0);
        EXPECT_EQ(set.plainToNormalised(taper.index, taper.points[4].plain), 1.0);
    }
}

TEST_F(BroltTaper, positionsHaveTheirPlainValues) {
    for (const Taper& taper : tapers) {
        SCOPED_TRACE(taper.id);
        for (const Point& point : taper.points) {
            const double expected = isSwitch(taper) ? std::round(point.plain) : point.plain;
            EXPECT_NEAR(set.normalisedToPlain(taper.index, point.normalised), expected, 1e-11)
                << point.normalised;
        }
        EXPECT_EQ(set.normalisedToPlain(taper.index, 0.0), taper.points[0].plain);
    }
}

TEST_F(BroltTaper, quarterPositionsOfTheLogarithmicParametersAreWhereTheyWere) {
    struct Quarter {
        std::int32_t index;
        double quarter;
        double half;
        double sevenEighths;
    };

    // clang-format off
    const Quarter quarters[] = {
        { 1,   4.5799756509618073449,  20.97617696340303094,  205.59904446948876839},
        { 2,   4.5799756509618073449,  20.97617696340303094,  205.59904446948876839},
        { 4, -59.984971693857013746,  -59.744093402186709109, -43.51532623847921459},
        { 5,   4.5799756509618073449,  20.97617696340303094,  205.59904446948876839},
        { 6,   4.5799756509618073449,  20.97617696340303094,  205.59904446948876839},
        { 8, -59.984971693857013746,  -59.744093402186709109, -43.51532623847921459},
        { 9,   1.016738214215398009,    1.313644243551348004,  24.505319439861390813},
        {10,   5.0305831817335996302,   5.9964973684175813403, 182.04885587775247285},
        {11,   1.016738214215398009,    1.313644243551348004,  24.505319439861390813},
        {12,   5.0305831817335996302,   5.9964973684175813403, 182.04885587775247285},
    };
    // clang-format on
    for (const Quarter& each : quarters) {
        EXPECT_NEAR(set.normalisedToPlain(each.index, 0.25), each.quarter, 1e-12) << each.index;
        EXPECT_NEAR(set.normalisedToPlain(each.index, 0.5), each.half, 1e-12) << each.index;
        EXPECT_NEAR(set.normalisedToPlain(each.index, 0.875), each.sevenEighths, 1e-11)
            << each.index;
    }
}

TEST_F(BroltTaper, switchesChangeInTheMiddle) {
    for (const std::int32_t index : {0, 3, 7}) {
        EXPECT_EQ(set.normalisedToPlain(index, 0.0), 0.0);
        EXPECT_EQ(set.normalisedToPlain(index, 0.4999), 0.0);
        EXPECT_EQ(set.normalisedToPlain(index, 0.5), 1.0);
        EXPECT_EQ(set.normalisedToPlain(index, 1.0), 1.0);
    }
}

TEST_F(BroltTaper, wetDryIsRoundedToHundredths) {
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(13, 0.123456), 12.35);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(13, 0.123449), 12.34);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(13, 0.00004), 0.0);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(13, 0.00006), 0.01);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(13, 1.0), 100.0);
}

TEST_F(BroltTaper, theOutputGainIsRoundedToHundredths) {
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(14, 0.123456), -18.07); // -18.074112
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(14, 0.1), -19.2);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(14, 0.0), -24.0);
    EXPECT_DOUBLE_EQ(set.normalisedToPlain(14, 1.0), 24.0);
    EXPECT_EQ(set.normalisedToPlain(14, 0.5), 0.0);
}

TEST_F(BroltTaper, theEnvelopeAttackHasItsEnds) {
    EXPECT_EQ(set.normalisedToPlain(9, 0.0), 1.0);
    EXPECT_NEAR(set.normalisedToPlain(9, 1.0), 100.0, 1e-11);
}

TEST_F(BroltTaper, valuesOutsideTheRangeGoAboveOneButNotBelowZero) {
    for (const Taper& taper : tapers) {
        SCOPED_TRACE(taper.id);
        const double below = taper.points[0].plain - 1.0;
        const double above = taper.points[4].plain + 1.0;
        EXPECT_EQ(set.plainToNormalised(taper.index, below), 0.0);
        EXPECT_GT(set.plainToNormalised(taper.index, above), 1.0);
        EXPECT_EQ(set.plainToNormalised(taper.index, std::nan("")), 0.0);
        EXPECT_EQ(set.plainToNormalised(taper.index, std::numeric_limits<double>::infinity()),
                  std::numeric_limits<double>::infinity());
    }
}
