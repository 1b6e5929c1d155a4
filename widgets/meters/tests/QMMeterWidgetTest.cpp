// SPDX-License-Identifier: GPL-3.0-or-later
// The meter in a window: what it takes from a record, when it draws, its marker and its modes.
#include "widgets/meters/QMMeterWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

class CountingMeter final : public QMMeterWidget {
public:
    using QMMeterWidget::QMMeterWidget;

    void paint(juce::Graphics& g) override {
        ++pictures;
        QMMeterWidget::paint(g);
    }

    int pictures = 0;
};

class QMMeterWidgetTest : public ToolkitTest {
protected:
    QMMeterWidgetTest() {
        meter.setSize(14, 220);
        meter.bindMeterRecord(0, fourCharCode("out "), 1, &record);
    }

    static void draw(TestWindow& window) { juce::ignoreUnused(window.picture()); }

    /// Draws when the meter wants to be drawn, as a window would.
    bool tickAndDraw(TestWindow& window) {
        meter.tick();
        const bool wanted = meter.getRenderer().needsRedraw(meter.getMeterData());
        if (wanted)
            draw(window);
        return wanted;
    }

    std::int64_t now = 5000;
    NoxMeterRecord record{0, {0.5f, 0.6f, 0.25f, 0.3f, 0.125f, 9.0f}};
    CountingMeter meter{nullptr, [this] { return now; }};
};

} // namespace

TEST_F(QMMeterWidgetTest, TakesTheWordsOfItsRecordAtEachTick) {
    meter.tick();
    const MeterData& data = meter.getMeterData();
    EXPECT_EQ(data.level[0], 0.5f);
    EXPECT_EQ(data.hold[0], 0.6f);
    EXPECT_EQ(data.level[1], 0.25f);
    EXPECT_EQ(data.hold[1], 0.3f);
    EXPECT_EQ(data.envelope, 0.125f);
    EXPECT_EQ(data.weighting, 0.0f);
    EXPECT_EQ(data.overloads[1], 0);
}

TEST_F(QMMeterWidgetTest, CountsTicksWithAnOverload) {
    record.values[0] = 1.0f;
    meter.tick();
    meter.tick();
    EXPECT_EQ(meter.getMeterData().overloads[1], 2);
    record.values[0] = 0.999f;
    record.values[1] = 1.0f;
    meter.tick();
    EXPECT_EQ(meter.getMeterData().overloads[1], 3);
    meter.setCountsOverloads(false);
    meter.tick();
    EXPECT_EQ(meter.getMeterData().overloads[1], 3);
    EXPECT_EQ(meter.getMeterData().overloads[0], 0);
}

TEST_F(QMMeterWidgetTest, AMeterOfAParameterHasNoOverloads) {
    record.values[0] = 2.0f;
    for (const std::uint32_t kind : {2u, 3u, 4u}) {
        meter.bindMeterRecord(0, fourCharCode("gred"), kind, &record);
        EXPECT_TRUE(meter.isParameterMeter());
        meter.tick();
        EXPECT_EQ(meter.getMeterData().overloads[1], 0);
    }
    for (const std::uint32_t kind : {1u, 5u, 6u}) {
        meter.bindMeterRecord(0, fourCharCode("out "), kind, &record);
        EXPECT_FALSE(meter.isParameterMeter());
    }
}

TEST_F(QMMeterWidgetTest, OnlyAnExistingRendererAndAChangeMakeAPicture) {
    meter.tick();
    TestWindow window(meter);
    draw(window);
    EXPECT_EQ(meter.pictures, 1);
    EXPECT_FALSE(tickAndDraw(window));
    EXPECT_EQ(meter.pictures, 1);
    record.values[0] = 0.75f;
    EXPECT_TRUE(tickAndDraw(window));
    EXPECT_EQ(meter.pictures, 2);
    EXPECT_FALSE(tickAndDraw(window));
}

TEST_F(QMMeterWidgetTest, TicksWithoutAChangeCostNextToNothing) {
    TestWindow window(meter);
    meter.tick();
    draw(window);
    const double before = juce::Time::getMillisecondCounterHiRes();
    for (int i = 0; i < 1000; ++i)
        meter.tick();
    EXPECT_LT((juce::Time::getMillisecondCounterHiRes() - before) / 1000.0, 0.05);
}

TEST_F(QMMeterWidgetTest, APeakIsHeldForTwoSecondsInTheFirstMode) {
    record = {0, {0.5f, 0.0f, 0.25f, 0.0f, 0.0f, 0.0f}};
    meter.setParameterValue(QMMeterWidget::modeSlot, 0.0, false);
    TestWindow window(meter);
    tickAndDraw(window);
    record.values[0] = 0.1f;
    now += 1900;
    tickAndDraw(window);
    EXPECT_EQ(meter.getRenderer().getHeldLevel(0), 0.5f);
    now += 150;
    tickAndDraw(window);
    tickAndDraw(window);
    EXPECT_EQ(meter.getRenderer().getHeldLevel(0), 0.1f);
}

TEST_F(QMMeterWidgetTest, ModesBringTheirPresets) {
    for (int mode = 1; mode <= 4; ++mode) {
        meter.setParameterValue(QMMeterWidget::modeSlot, mode + 0.9, false);
        EXPECT_EQ(meter.getSlotValue(QMMeterWidget::modeSlot), std::min(mode, 4));
        EXPECT_EQ(meter.getRenderer().getPreset().holdSeconds, 0.0);
        EXPECT_TRUE(meter.getRenderer().getPreset().withoutHoldMarks);
    }
    meter.setParameterValue(QMMeterWidget::modeSlot, 0.0, false);
    EXPECT_EQ(meter.getRenderer().getPreset().holdSeconds, 2.0);
    EXPECT_EQ(meter.getRenderer().getPreset().secondSeconds, 0.0);
    EXPECT_FALSE(meter.getRenderer().getPreset().withoutHoldMarks);
    for (const double wrong : {-7.0, 100.0, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
        meter.setParameterValue(QMMeterWidget::modeSlot, wrong, false);
    EXPECT_EQ(meter.getSlotValue(QMMeterWidget::modeSlot), 4.0);
}

TEST_F(QMMeterWidgetTest, AModeSetBeforeTheFirstPictureHoldsInIt) {
    meter.setParameterValue(QMMeterWidget::modeSlot, 2.0, false);
    EXPECT_TRUE(meter.getRenderer().getPreset().withoutHoldMarks);
}

TEST_F(QMMeterWidgetTest, TheMarkerStandsAtItsLevel) {
    meter.setParameterValue(QMMeterWidget::markerSlot, -10.0, false);
    EXPECT_DOUBLE_EQ(meter.getMarkerLevel(), 0.1);
    EXPECT_EQ(meter.getSlotValue(QMMeterWidget::markerSlot), -10.0);
    // The meter is 220 - 2 * 7 high; log10(1.9) = 0.27875 of it from its bottom.
    EXPECT_EQ(meter.getMarkerPosition(), 149);
    meter.setParameterValue(QMMeterWidget::markerSlot, 0.0, false);
    EXPECT_EQ(meter.getMarkerPosition(), 0);
    meter.setSize(14, 440);
    meter.setParameterValue(QMMeterWidget::markerSlot, -10.0, false);
    EXPECT_EQ(meter.getMarkerPosition(), 307);
}

TEST_F(QMMeterWidgetTest, TheMarkerIsDrawnOnlyWhenItIsShown) {
    juce::Image dot(juce::Image::ARGB, 4, 4, true);
    dot.clear(dot.getBounds(), juce::Colours::blue);
    meter.setMarkerImage(dot);
    meter.setParameterValue(QMMeterWidget::markerSlot, -10.0, false);
    TestWindow window(meter);
    EXPECT_NE(window.picture().getPixelAt(7, 7 + 149), juce::Colours::blue);
    meter.setShowMarker(true);
    EXPECT_EQ(window.picture().getPixelAt(7, 7 + 149), juce::Colours::blue);
    meter.setMarkerImage({});
    EXPECT_GT(window.picture().getPixelAt(2, 7 + 149).getBrightness(), 0.6f);
}

TEST_F(QMMeterWidgetTest, DrawsDataThatItWasGiven) {
    MeterData shared;
    QMMeterWidget other(&shared);
    other.bindMeterRecord(0, fourCharCode("out "), 1, &record);
    other.tick();
    EXPECT_EQ(shared.level[0], 0.5f);
    EXPECT_EQ(&other.getMeterData(), &shared);
}

TEST_F(QMMeterWidgetTest, UnboundItShowsSilenceAndOtherSlotsDoNotExist) {
    meter.bindMeterRecord(1, fourCharCode("out2"), 1, nullptr);
    meter.tick();
    EXPECT_EQ(meter.getMeterData().level[0], 0.5f);
    meter.bindMeterRecord(0, fourCharCode("out "), 1, nullptr);
    meter.tick();
    EXPECT_EQ(meter.getMeterData().level[0], 0.0f);
}

TEST_F(QMMeterWidgetTest, ANumberThatIsNoneIsSilence) {
    TestWindow window(meter);
    for (float& word : record.values)
        word = std::numeric_limits<float>::quiet_NaN();
    tickAndDraw(window);
    EXPECT_EQ(meter.getMeterData().level[0], 0.0f);
    EXPECT_FALSE(tickAndDraw(window));
    for (float& word : record.values)
        word = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(tickAndDraw(window));
    EXPECT_EQ(meter.getRenderer().getDrawnExtent(0), 206);
}

TEST_F(QMMeterWidgetTest, RefreshesItselfWhenItIsTold) {
    meter.setRefreshesItself(true);
    EXPECT_TRUE(runLoopUntil([this] { return meter.getMeterData().level[0] == 0.5f; }));
    meter.setRefreshesItself(false);
    EXPECT_FALSE(meter.isTimerRunning());
}

TEST_F(QMMeterWidgetTest, TellsAScreenReaderThePeakInDecibels) {
    TestWindow window(meter);
    meter.tick();
    // 10 log10(0.5)
    EXPECT_EQ(meter.getDisplayText(), "-3.0 dB");
    const auto handler = meter.createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::progressBar);
    ASSERT_NE(handler->getValueInterface(), nullptr);
    EXPECT_TRUE(handler->getValueInterface()->isReadOnly());
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "-3.0 dB");
    EXPECT_NEAR(handler->getValueInterface()->getCurrentValue(), -3.0103, 0.0001);
    record.values[0] = 0.0f;
    meter.tick();
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "-Inf dB");
    EXPECT_EQ(handler->getValueInterface()->getCurrentValue(), -60.0);
}
