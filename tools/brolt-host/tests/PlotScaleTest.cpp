// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/PlotScale.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using testing::ElementsAre;

namespace {

std::vector<std::string> labelsOf(const PlotScale& scale) {
    std::vector<std::string> labels;
    for (const PlotTick& tick : scale.ticks) {
        if (!tick.label.empty())
            labels.push_back(tick.label);
    }
    return labels;
}

} // namespace

TEST(PlotScale, theEndsOfAnAxisAreItsMinimumAndMaximum) {
    const PlotScale linear{-60.0, 0.0, false, {}};
    EXPECT_EQ(linear.position(-60.0), 0.0);
    EXPECT_EQ(linear.position(-30.0), 0.5);
    EXPECT_EQ(linear.position(0.0), 1.0);
    const PlotScale logarithmic{10.0, 1000.0, true, {}};
    EXPECT_NEAR(logarithmic.position(100.0), 0.5, 1e-12);
}

TEST(PlotScale, valuesOutsideStayAtTheEnds) {
    const PlotScale scale{-60.0, 0.0, false, {}};
    EXPECT_EQ(scale.position(-std::numeric_limits<double>::infinity()), 0.0);
    EXPECT_EQ(scale.position(std::numeric_limits<double>::infinity()), 1.0);
    EXPECT_EQ(scale.position(std::nan("")), 0.0);
    const PlotScale logarithmic{10.0, 1000.0, true, {}};
    EXPECT_EQ(logarithmic.position(0.0), 0.0);
}

TEST(PlotScale, timeHasRoundSteps) {
    EXPECT_THAT(labelsOf(timeScale(4.5)),
                ElementsAre("0", "0.5", "1", "1.5", "2", "2.5", "3", "3.5", "4", "4.5"));
    EXPECT_THAT(labelsOf(timeScale(600.0)),
                ElementsAre("0:00", "1:00", "2:00", "3:00", "4:00", "5:00", "6:00", "7:00", "8:00",
                            "9:00", "10:00"));
}

TEST(PlotScale, timeOfAnyLengthHasAHandfulOfMarks) {
    for (int i = 0; i < 80; ++i) {
        const double seconds = 1e-5 * std::pow(1.37, i);
        const std::size_t marks = timeScale(seconds).ticks.size();
        EXPECT_GE(marks, 3U) << seconds;
        EXPECT_LE(marks, 300U) << seconds;
        if (seconds < 20000.0) {
            EXPECT_LE(marks, 14U) << seconds;
        }
    }
}

TEST(PlotScale, frequenciesReachFromDigitToDigit) {
    const PlotScale scale = frequencyScale(56.0, 215.0);
    EXPECT_NEAR(scale.minimum, 50.0, 1e-9);
    EXPECT_NEAR(scale.maximum, 300.0, 1e-9);
    EXPECT_THAT(labelsOf(scale), ElementsAre("50", "60", "80", "100", "200", "300"));
    EXPECT_THAT(labelsOf(frequencyScale(18.0, 900.0)),
                ElementsAre("10", "20", "50", "100", "200", "500"));
}

TEST(PlotScale, aSingleFrequencyStillMakesAnAxis) {
    const PlotScale scale = frequencyScale(100.0, 100.0);
    EXPECT_GE(scale.maximum, 2.0 * scale.minimum);
}

TEST(PlotScale, levelsReachUpToTheHighest) {
    EXPECT_EQ(levelScale(-60.0, -3.0).maximum, 0.0);
    EXPECT_EQ(levelScale(-60.0, 13.0).maximum, 18.0);
    EXPECT_EQ(levelScale(-60.0, std::numeric_limits<double>::infinity()).maximum, 0.0);
    EXPECT_THAT(labelsOf(levelScale(-60.0, 13.0)),
                ElementsAre("-60", "-48", "-36", "-24", "-12", "0", "+12"));
}
