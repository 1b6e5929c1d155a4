// SPDX-License-Identifier: GPL-3.0-or-later
// The output meters of the product's editor, from what the processor captures to what they show.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/meters/QMMeterWidget.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

/// A meter as it is described to users, of one channel.
class MeterModel {
public:
    /// At a picture of these levels, squared both; milliseconds.
    void draw(double peak, double mean, std::int64_t now) {
        const std::int64_t sixtieths = now * 60 / 1000;
        glow *= 0.8;
        if (glow < 1.0 / 255.0)
            glow = 0.0;
        if (peak > 0.99993896)
            glow = 1.0;
        if (peak > heldPeak || mean > heldMean)
            risen = sixtieths;
        heldPeak = std::max(heldPeak, peak);
        heldMean = std::max(heldMean, mean);
        if (static_cast<double>(sixtieths - risen) / 60.0 > 2.0 && heldPeak > 1.0e-6) {
            heldPeak = 0.0;
            heldMean = 0.0;
            risen = sixtieths;
        }
    }

    /// Of the meter's length.
    static double fractionOf(double level) {
        return std::clamp(std::log10(9.0 * level + 1.0), 0.0, 1.0);
    }

    double heldPeak = 0.0;
    double heldMean = 0.0;
    double glow = 0.0;
    std::int64_t risen = 0;
};

class EditorMeters : public BroltEditorTest {
protected:
    EditorMeters() {
        open();
        beginTicking();
    }

    [[nodiscard]] QMMeterWidget& left() const { return widget<QMMeterWidget>("metr"); }

    [[nodiscard]] QMMeterWidget& right() const { return widget<QMMeterWidget>("mtr2"); }

    /// Linear peaks; the mean square is half of the peak's square.
    void play(float leftPeak, float rightPeak) {
        const auto channel = [this](std::size_t word, float peak) {
            instance->analysis()[word] = 0.5F * peak;
            instance->analysis()[word + 1] = 0.5F * peak * peak;
            instance->analysis()[word + 2] = peak;
        };
        channel(4, leftPeak);
        channel(7, rightPeak);
    }

    /// As the editor does after a tick.
    static void draw(QMMeterWidget& meter) { static_cast<void>(pictureOf(meter)); }
};

TEST_F(EditorMeters, showTheSquaresOfTheirChannels) {
    play(0.5F, 0.25F);
    tickAfter(30);
    EXPECT_EQ(left().getMeterData().level[0], 0.25F) << "peak";
    EXPECT_EQ(left().getMeterData().level[1], 0.125F) << "mean square";
    EXPECT_EQ(left().getMeterData().envelope, 0.0625F);
    EXPECT_EQ(right().getMeterData().level[0], 0.0625F);
    EXPECT_EQ(right().getMeterData().level[1], 0.03125F);
    EXPECT_EQ(right().getMeterData().envelope, 0.015625F);
    EXPECT_EQ(left().getMeterData().hold[0], 0.0F) << "the processor holds nothing";
    EXPECT_EQ(left().getMeterData().hold[1], 0.0F);
}

TEST_F(EditorMeters, standUprightAtEverySize) {
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        EXPECT_TRUE(left().getRenderer().isVertical()) << percent;
        EXPECT_TRUE(right().getRenderer().isVertical()) << percent;
    }
}

TEST_F(EditorMeters, areAsHighAsTheirLevels) {
    play(0.5F, 1.0F);
    tickAfter(30);
    for (const std::int32_t percent : {40, 100, 250}) {
        editor->setScalePercent(percent);
        draw(left());
        draw(right());
        const MeterRenderer& drawn = left().getRenderer();
        const int length = drawn.getArea().getHeight();
        EXPECT_EQ(drawn.getDrawnExtent(0), std::lround(MeterModel::fractionOf(0.25) * length));
        EXPECT_EQ(drawn.getDrawnExtent(1), std::lround(MeterModel::fractionOf(0.125) * length));
        EXPECT_EQ(right().getRenderer().getDrawnExtent(0),
                  right().getRenderer().getArea().getHeight())
            << "full scale";
    }
}

TEST_F(EditorMeters, dropAHeldPeakTwoSecondsAfterItsLastRise) {
    play(0.9F, 0.1F);
    tickAfter(30);
    draw(left());
    play(0.1F, 0.1F);
    tickAfter(30);
    draw(left());
    EXPECT_FLOAT_EQ(left().getRenderer().getHeldLevel(0), 0.81F);
    tickAfter(900);
    tickAfter(900);
    tickAfter(150);
    draw(left());
    EXPECT_FLOAT_EQ(left().getRenderer().getHeldLevel(0), 0.81F) << "1.98 seconds";
    tickAfter(60);
    draw(left());
    tickAfter(30);
    draw(left());
    EXPECT_FLOAT_EQ(left().getRenderer().getHeldLevel(0), 0.01F) << "what there is now";
}

TEST_F(EditorMeters, lightTheirClipLampWhichFadesByAFifthWithEachPicture) {
    play(1.0F, 0.5F);
    tickAfter(30);
    draw(left());
    draw(right());
    EXPECT_EQ(left().getRenderer().getClipColour(), juce::Colour(255, 0, 0));
    EXPECT_EQ(right().getRenderer().getClipGlow(), 0.0F);
    play(0.5F, 0.5F);
    tickAfter(30);
    double glow = 1.0;
    for (int pictures = 0; pictures < 20; ++pictures) {
        draw(left());
        glow *= 0.8;
        EXPECT_NEAR(left().getRenderer().getClipGlow(), glow, 1.0e-5) << pictures;
        EXPECT_EQ(left().getRenderer().getClipColour().getRed(), std::lround(255.0 * glow));
    }
}

TEST_F(EditorMeters, takeOnlyTheHighestLevelsForClipping) {
    play(std::sqrt(0.99993F), std::sqrt(0.99995F));
    tickAfter(30);
    draw(left());
    draw(right());
    EXPECT_EQ(left().getRenderer().getClipGlow(), 0.0F);
    EXPECT_EQ(right().getRenderer().getClipGlow(), 1.0F);
}

TEST_F(EditorMeters, doWhatTheModelDoesForAMinuteOfNoise) {
    std::minstd_rand random(1);
    std::uniform_real_distribution<float> decibels(-70.0F, 3.0F);
    MeterModel leftModel;
    MeterModel rightModel;
    for (int tick = 0; tick < 2000; ++tick) {
        // Long stretches of quiet, that holds may end.
        const float quiet = tick / 150 % 2 == 0 ? 0.0F : -40.0F;
        play(std::pow(10.0F, (decibels(random) + quiet) / 20.0F),
             std::pow(10.0F, (decibels(random) + quiet) / 20.0F));
        tickAfter(30);
        draw(left());
        draw(right());
        const auto expectModel = [tick](QMMeterWidget& meter, MeterModel& model) {
            const MeterData& data = meter.getMeterData();
            model.draw(data.level[0], data.level[1], displayTime());
            ASSERT_FLOAT_EQ(meter.getRenderer().getHeldLevel(0), static_cast<float>(model.heldPeak))
                << tick;
            ASSERT_FLOAT_EQ(meter.getRenderer().getHeldLevel(1), static_cast<float>(model.heldMean))
                << tick;
            ASSERT_NEAR(meter.getRenderer().getClipGlow(), model.glow, 1.0e-5) << tick;
        };
        expectModel(left(), leftModel);
        expectModel(right(), rightModel);
    }
}

TEST_F(EditorMeters, areAloneForOneChannel) {
    open(mono);
    beginTicking();
    play(0.5F, 0.0F);
    tickAfter(30);
    EXPECT_EQ(left().getMeterData().level[0], 0.25F);
    EXPECT_EQ(left().getMeterData().level[1], 0.125F);
    EXPECT_EQ(editor->widgetOfID(fourCharCode("mtr2")), nullptr);
}

TEST_F(EditorMeters, standStillInATickThatComesLateThoughTheirRecordsDoNot) {
    const auto& history = widget<QMPitchHistory>("wind");
    play(0.5F, 0.5F);
    tickAfter(30);
    const std::size_t samples = history.getSamples().size();
    play(0.25F, 0.25F);
    tickAfter(1500);
    EXPECT_EQ(instance->get().meterRecord(0)->values[0], 0.0625F) << "fetched";
    EXPECT_EQ(left().getMeterData().level[0], 0.25F) << "not shown";
    EXPECT_EQ(history.getSamples().size(), samples);
    tickAfter(30);
    EXPECT_EQ(left().getMeterData().level[0], 0.0625F);
    EXPECT_GT(history.getSamples().size(), 0U);
}

} // namespace
