// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where curves leave ink and where they do not.

#include "tools/brolt-host/PlotCurve.h"

#include <gtest/gtest.h>

namespace {

constexpr int width = 60;
constexpr int height = 40;
constexpr Colour white{255, 255, 255};
constexpr Colour black{0, 0, 0};

/// 0 for no ink, 255 for all.
int inkAt(const PlotCanvas& canvas, int x, int y) {
    const std::size_t pixel = static_cast<std::size_t>(y * width + x) * 3;
    return 255 - canvas.pixels()[pixel];
}

} // namespace

TEST(PlotCurve, aLevelLineIsAsThickAsThePen) {
    PlotCanvas canvas(width, height, white);
    drawCurve(canvas, {{10.0, 20.5}, {50.0, 20.5}}, 3.0, black);
    EXPECT_EQ(inkAt(canvas, 30, 17), 0);
    for (const int y : {19, 20, 21})
        EXPECT_EQ(inkAt(canvas, 30, y), 255) << y;
    EXPECT_EQ(inkAt(canvas, 30, 23), 0);
    EXPECT_EQ(inkAt(canvas, 5, 20), 0);
    EXPECT_EQ(inkAt(canvas, 55, 20), 0);
}

TEST(PlotCurve, aSteepRiseIsAsWideAsThePen) {
    PlotCanvas canvas(width, height, white);
    drawCurve(canvas, {{5.0, 35.0}, {30.0, 35.0}, {30.1, 5.0}, {55.0, 5.0}}, 3.0, black);
    EXPECT_EQ(inkAt(canvas, 30, 20), 255);
    EXPECT_EQ(inkAt(canvas, 27, 20), 0);
    EXPECT_EQ(inkAt(canvas, 33, 20), 0);
}

TEST(PlotCurve, manyPointsInOneColumnKeepTheirExtremes) {
    std::vector<CurvePoint> points;
    points.reserve(10000);
    for (int i = 0; i < 10000; ++i)
        points.push_back({10.0 + i * 0.004, i % 2 == 0 ? 10.0 : 30.0});
    PlotCanvas canvas(width, height, white);
    drawCurve(canvas, points, 1.0, black);
    for (const int y : {11, 20, 29})
        EXPECT_EQ(inkAt(canvas, 30, y), 255) << y;
    EXPECT_EQ(inkAt(canvas, 30, 7), 0);
    EXPECT_EQ(inkAt(canvas, 30, 33), 0);
}

TEST(PlotCurve, opacityGoesFromPointToPoint) {
    PlotCanvas canvas(width, height, white);
    drawCurve(canvas, {{0.0, 20.5, 0.0}, {60.0, 20.5, 1.0}}, 3.0, black);
    EXPECT_NEAR(inkAt(canvas, 15, 20), 63.75, 12.0);
    EXPECT_NEAR(inkAt(canvas, 45, 20), 191.25, 12.0);
}

TEST(PlotCurve, theAreaBelowReachesToTheBottom) {
    PlotCanvas canvas(width, height, white);
    fillBelowCurve(canvas, {{10.0, 15.0}, {50.0, 15.0}}, 35.0, black, 1.0);
    EXPECT_EQ(inkAt(canvas, 30, 13), 0);
    EXPECT_EQ(inkAt(canvas, 30, 16), 255);
    EXPECT_EQ(inkAt(canvas, 30, 33), 255);
    EXPECT_EQ(inkAt(canvas, 30, 36), 0);
}

TEST(PlotCurve, nothingAndASinglePointAreCurvesToo) {
    PlotCanvas canvas(width, height, white);
    drawCurve(canvas, {}, 3.0, black);
    drawCurve(canvas, {{30.0, 20.0}}, 3.0, black);
    EXPECT_GT(inkAt(canvas, 30, 20), 0);
}

TEST(PlotCanvas, textLeavesInkAndForeignLettersAreReplaced) {
    PlotCanvas canvas(200, 40, white);
    EXPECT_GT(canvas.textWidth("Hz", 16.0), canvas.textWidth("H", 16.0));
    EXPECT_EQ(canvas.textWidth("\xc3\xb6", 16.0), canvas.textWidth("?", 16.0));
    canvas.drawText(10.0, 5.0, "100 Hz", 20.0, black);
    int ink = 0;
    for (const std::uint8_t value : canvas.pixels())
        ink += 255 - value;
    EXPECT_GT(ink, 10000);
}
