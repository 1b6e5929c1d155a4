// SPDX-License-Identifier: GPL-3.0-or-later
// The row of lamps.
#include "widgets/meters/QMLEDBarGraph.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <limits>

using QMLEDBarGraphTest = ToolkitTest;

TEST_F(QMLEDBarGraphTest, LightsAsMuchOfItselfAsTheValueHasOfTheRange) {
    QMLEDBarGraph graph;
    graph.setSegmentCount(10);
    graph.setSlotMinimum(0, -60.0, false);
    graph.setSlotMaximum(0, 0.0, false);
    const auto litAt = [&](double value) {
        graph.setParameterValue(0, value, false);
        return graph.getLitCount();
    };
    EXPECT_EQ(litAt(-60.0), 0);
    EXPECT_EQ(litAt(-30.0), 5);
    EXPECT_EQ(litAt(0.0), 10);
    EXPECT_EQ(litAt(20.0), 10);
    EXPECT_EQ(litAt(-1000.0), 0);
    EXPECT_EQ(litAt(-6.0), 9);
    EXPECT_EQ(litAt(std::numeric_limits<double>::quiet_NaN()), 9);
    graph.setSlotMaximum(0, -60.0, false);
    EXPECT_EQ(graph.getLitCount(), 0);
}

TEST_F(QMLEDBarGraphTest, ItsLampsFillItFromLeftToRightOrFromBottomToTop) {
    QMLEDBarGraph graph;
    graph.setSegmentCount(4);
    graph.setSize(100, 10);
    EXPECT_EQ(graph.segmentArea(0), juce::Rectangle<int>(0, 0, 24, 10));
    EXPECT_EQ(graph.segmentArea(3), juce::Rectangle<int>(75, 0, 24, 10));
    graph.setSize(10, 100);
    EXPECT_EQ(graph.segmentArea(0), juce::Rectangle<int>(0, 76, 10, 24));
    EXPECT_EQ(graph.segmentArea(3), juce::Rectangle<int>(0, 1, 10, 24));
}

TEST_F(QMLEDBarGraphTest, LitLampsAreBrightAndTheLastOnesRed) {
    QMLEDBarGraph graph;
    graph.setSegmentCount(10);
    graph.setSize(100, 10);
    graph.setParameterValue(0, 0.75, false);
    TestWindow window(graph);
    juce::Image picture = window.picture();
    EXPECT_EQ(picture.getPixelAt(3, 5), juce::Colour(0, 255, 0));
    EXPECT_EQ(picture.getPixelAt(73, 5), juce::Colour(255, 255, 0));
    EXPECT_LT(picture.getPixelAt(93, 5).getBrightness(), 0.3f);
    graph.setParameterValue(0, 1.0, false);
    picture = window.picture();
    EXPECT_EQ(picture.getPixelAt(93, 5), juce::Colour(255, 0, 0));
}

TEST_F(QMLEDBarGraphTest, HasAtLeastOneLamp) {
    QMLEDBarGraph graph;
    graph.setSegmentCount(0);
    EXPECT_EQ(graph.getSegmentCount(), 1);
    graph.setSegmentCount(100000);
    EXPECT_EQ(graph.getSegmentCount(), QMLEDBarGraph::mostSegments);
}
