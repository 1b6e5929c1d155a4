// SPDX-License-Identifier: GPL-3.0-or-later
// The scale beside a meter lines up with it and can be read.
#include "widgets/meters/QMMeterCalibrationWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/meters/QMMeterWidget.h"

#include <algorithm>
#include <string>

using QMMeterCalibrationWidgetTest = ToolkitTest;

namespace {

std::string labelsOf(const QMMeterCalibrationWidget& widget) {
    std::string labels;
    for (const auto& mark : widget.getMarks()) {
        if (mark.showsLabel)
            labels += std::string(mark.mark->label) + " ";
    }
    return labels;
}

} // namespace

TEST_F(QMMeterCalibrationWidgetTest, MarksStandWhereTheMeterHasTheirLevels) {
    for (const float magnification : {0.6f, 1.0f, 1.2f, 2.0f}) {
        const auto size = [&](int designUnits) {
            return juce::roundToInt(static_cast<float>(designUnits) * magnification);
        };
        QMMeterWidget meter;
        QMMeterCalibrationWidget scale;
        meter.setMagnification(magnification);
        scale.setMagnification(magnification);
        meter.setSize(size(14), size(220));
        scale.setSize(size(20), size(220));
        ASSERT_FALSE(scale.getMarks().empty());
        for (const auto& mark : scale.getMarks())
            EXPECT_EQ(mark.position, meter.getRenderer().positionOf(mark.mark->level()));
    }
}

TEST_F(QMMeterCalibrationWidgetTest, LeavesOutLabelsThatWouldRunIntoOneAnother) {
    QMMeterCalibrationWidget scale;
    scale.setSize(20, 220);
    // The mark at -25 dB is only 2.5 pixels from the one at -20.
    EXPECT_EQ(labelsOf(scale), "0 -5 -10 -15 -20 ");
    float last = -100.0f;
    for (const auto& mark : scale.getMarks()) {
        EXPECT_GE(mark.position - last, 2.0f);
        last = mark.position;
    }
}

TEST_F(QMMeterCalibrationWidgetTest, ShowsEveryLabelWhereTheMappingGivesItRoom) {
    QMMeterCalibrationWidget scale;
    scale.setSize(20, 620);
    scale.setMapping({MeterMappingMode::logarithmic, 1e-6, 1.0, 9.0});
    EXPECT_EQ(labelsOf(scale), "0 -5 -10 -15 -20 -25 -30 -35 -40 -50 -60 ");
    EXPECT_EQ(scale.getMarks().size(), 27u);
}

TEST_F(QMMeterCalibrationWidgetTest, ShowsAnotherScale) {
    QMMeterCalibrationWidget scale;
    scale.setSize(20, 220);
    scale.setMapping({MeterMappingMode::logarithmic, 1e-6, 1.0, 9.0});
    scale.setScale(0);
    EXPECT_EQ(labelsOf(scale), "7 6 5 4 3 2 1 ");
    scale.setScale(99);
    EXPECT_EQ(labelsOf(scale), "7 6 5 4 3 2 1 ");
}

TEST_F(QMMeterCalibrationWidgetTest, RunsAlongAWideMeterToo) {
    QMMeterWidget meter;
    QMMeterCalibrationWidget scale;
    meter.setSize(300, 14);
    scale.setSize(300, 20);
    EXPECT_EQ(labelsOf(scale).rfind("0 -5 -10 ", 0), 0u);
    for (const auto& mark : scale.getMarks())
        EXPECT_EQ(mark.position, meter.getRenderer().positionOf(mark.mark->level()));
}

TEST_F(QMMeterCalibrationWidgetTest, DrawsLinesAtItsEdgesAndLabelsBetweenThem) {
    QMMeterCalibrationWidget scale;
    scale.setSize(30, 220);
    TestWindow window(scale);
    const juce::Image picture = window.picture();
    const juce::Colour ground = picture.getPixelAt(1, 1);
    for (const auto& mark : scale.getMarks()) {
        // The lowest marks are on the meter's last pixel.
        const int y = std::min(juce::roundToInt(mark.position), 220 - 7 - 1);
        EXPECT_NE(picture.getPixelAt(1, y), ground) << mark.mark->decibels;
        EXPECT_NE(picture.getPixelAt(28, y), ground) << mark.mark->decibels;
        int inked = 0;
        for (int x = 5; x < 25; ++x)
            inked += picture.getPixelAt(x, y) != ground || picture.getPixelAt(x, y + 1) != ground;
        EXPECT_GE(inked, mark.showsLabel ? 1 : 0) << mark.mark->decibels;
    }
}

TEST_F(QMMeterCalibrationWidgetTest, AnEmptyOneHasNoMarks) {
    QMMeterCalibrationWidget scale;
    EXPECT_TRUE(scale.getMarks().empty());
    scale.setSize(0, 50);
    EXPECT_TRUE(scale.getMarks().empty());
}
