// SPDX-License-Identifier: GPL-3.0-or-later
// What the pitch history keeps: its samples, when they go, when it wants to be drawn.
#include "widgets/history/QMPitchHistory.h"

#include "tests/support/toolkit/TestWindow.h"
#include "widgets/history/tests/support/PitchHistoryFixture.h"
#include "widgets/history/tests/support/RepaintCounter.h"

#include <limits>

using QMPitchHistoryTest = PitchHistoryFixture;

TEST_F(QMPitchHistoryTest, ASampleHoldsTimeFrequenciesAndGains) {
    setOscillator(0, 61.2, 0.5f);
    setOscillator(1, 220.0, 0.25f);
    tickAfter(0);
    ASSERT_EQ(history.getSamples().size(), 1U);
    const QMPitchHistory::Sample& sample = history.getSamples()[0];
    EXPECT_DOUBLE_EQ(sample.time, 1000.0);
    // The cosine's last bit is 0.05 Hz at such low frequencies.
    EXPECT_NEAR(sample.frequency[0], 61.2, 0.1);
    EXPECT_NEAR(sample.frequency[1], 220.0, 0.1);
    EXPECT_EQ(sample.gain[0], 0.5);
    EXPECT_EQ(sample.gain[1], 0.25);
}

TEST_F(QMPitchHistoryTest, APhaseStepBecomesHertzAtTheSampleRate) {
    // A step of a hundredth of a turn: cos(0.0628318531) = 0.998026728.
    record.values[0] = 0.998026728f;
    EXPECT_EQ(history.getSampleRate(), 44100.0f);
    tickAfter(tickMs);
    EXPECT_NEAR(history.getSamples().newest().frequency[0], 441.0, 0.01);
    history.setSampleRate(48000.0f);
    tickAfter(tickMs);
    EXPECT_NEAR(history.getSamples().newest().frequency[0], 480.0, 0.01);
    // Standing still, and half a turn a frame.
    record.values[0] = 1.0f;
    record.values[2] = -1.0f;
    tickAfter(tickMs);
    EXPECT_EQ(history.getSamples().newest().frequency[0], 0.0);
    EXPECT_NEAR(history.getSamples().newest().frequency[1], 24000.0, 0.01);
}

TEST_F(QMPitchHistoryTest, WhatIsNoSampleRateIsIgnored) {
    history.setSampleRate(96000.0f);
    for (const float wrong : {0.0f, -44100.0f, std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()})
        history.setSampleRate(wrong);
    EXPECT_EQ(history.getSampleRate(), 96000.0f);
}

TEST_F(QMPitchHistoryTest, WithoutARecordItStaysEmpty) {
    QMPitchHistory unbound(QMPitchHistory::usualLength, nullptr, clock());
    unbound.tick();
    unbound.tick();
    EXPECT_TRUE(unbound.getSamples().isEmpty());
    // There is one slot.
    unbound.bindMeterRecord(1, fourCharCode("ptch"), 6, &record);
    unbound.tick();
    EXPECT_TRUE(unbound.getSamples().isEmpty());
}

TEST_F(QMPitchHistoryTest, UnboundItIsEmptyAgain) {
    tickFor(300);
    history.bindMeterRecord(1, fourCharCode("ptch"), 6, nullptr);
    EXPECT_EQ(history.getSamples().size(), 10U);
    history.bindMeterRecord(0, fourCharCode("ptch"), 6, nullptr);
    EXPECT_TRUE(history.getSamples().isEmpty());
}

TEST_F(QMPitchHistoryTest, ASampleGoesAtTheFirstTickMoreThanATenthBeyondTheLength) {
    tickAfter(0);
    tickAfter(3090);
    EXPECT_EQ(history.getSamples().size(), 2U);
    tickAfter(20);
    EXPECT_EQ(history.getSamples().size(), 2U);
    EXPECT_DOUBLE_EQ(history.getSamples()[0].time, 1003.09);
}

TEST_F(QMPitchHistoryTest, AllSamplesMayGoAtOnce) {
    tickFor(3000);
    tickAfter(3600 * 1000);
    EXPECT_EQ(history.getSamples().size(), 1U);
}

TEST_F(QMPitchHistoryTest, AValueAboveTheScaleIsReplacedByTheNext) {
    for (std::size_t oscillator = 0; oscillator < 2; ++oscillator) {
        const std::size_t other = 1 - oscillator;
        setOscillator(other, 50.0, 1.0f);
        setOscillator(oscillator, 100.0, 1.0f);
        tickAfter(tickMs);
        setOscillator(oscillator, 880.0, 0.5f);
        tickAfter(tickMs);
        EXPECT_NEAR(history.getSamples().newest().frequency[oscillator], 880.0, 0.1);
        setOscillator(oscillator, 200.0, 1.0f);
        setOscillator(other, 60.0, 1.0f);
        tickAfter(tickMs);
        const auto& samples = history.getSamples();
        const std::size_t last = samples.size() - 1;
        EXPECT_NEAR(samples[last].frequency[oscillator], 200.0, 0.1);
        EXPECT_NEAR(samples[last - 1].frequency[oscillator], 200.0, 0.1);
        EXPECT_NEAR(samples[last - 2].frequency[oscillator], 100.0, 0.1);
        // Its gain stays, and so does what the other oscillator had.
        EXPECT_EQ(samples[last - 1].gain[oscillator], 0.5);
        EXPECT_NEAR(samples[last - 1].frequency[other], 50.0, 0.1);
    }
}

TEST_F(QMPitchHistoryTest, AValueAtTheTopOfTheScaleStays) {
    setOscillator(0, 439.9, 1.0f);
    tickAfter(tickMs);
    setOscillator(0, 100.0, 1.0f);
    tickAfter(tickMs);
    EXPECT_NEAR(history.getSamples()[0].frequency[0], 439.9, 0.05);
}

TEST_F(QMPitchHistoryTest, AnHourOfTicksNeedsNoMoreRoomThanTheFirstSeconds) {
    setOscillator(0, 100.0, 1.0f);
    tickFor(4000);
    const std::size_t room = history.getSamples().capacity();
    // 3.1 s at 30 ms are 103 samples and the new one.
    EXPECT_EQ(room, 128U);
    for (int i = 0; i < 120000; ++i)
        tickAfter(tickMs);
    EXPECT_EQ(history.getSamples().capacity(), room);
    EXPECT_EQ(history.getSamples().size(), 104U);
}

TEST_F(QMPitchHistoryTest, AClockThatGoesBackwardsLeavesNoOldSamples) {
    tickFor(3000);
    tickAfter(-3600 * 1000);
    EXPECT_EQ(history.getSamples().size(), 1U);
    tickAfter(tickMs);
    EXPECT_EQ(history.getSamples().size(), 2U);
    // A little: what is later than now goes.
    tickFor(300);
    tickAfter(-75);
    EXPECT_EQ(history.getSamples().size(), 10U);
    EXPECT_DOUBLE_EQ(history.getSamples().newest().time, static_cast<double>(now) * 0.001);
}

TEST_F(QMPitchHistoryTest, AClockThatStandsStillDoesNotFillTheMemory) {
    for (int i = 0; i < 20000; ++i)
        history.tick();
    EXPECT_EQ(history.getSamples().size(), HistoryRing<QMPitchHistory::Sample>::most);
}

TEST_F(QMPitchHistoryTest, AsksToBeDrawnAsLongAsThereIsSomethingToSee) {
    history.setSize(502, 173);
    TestWindow window(history);
    RepaintCounter& repaints = RepaintCounter::on(history);
    tickFor(6000);
    EXPECT_EQ(repaints.take(), 0);

    setOscillator(1, 55.0, 0.5f);
    tickAfter(tickMs);
    EXPECT_EQ(repaints.take(), 1);
    setOscillator(1, 55.0, 0.0f);
    // Until the sample has gone, and once more without it: 3.1 s are 103 ticks.
    tickFor(3150);
    EXPECT_EQ(repaints.take(), 104);
    tickFor(3000);
    EXPECT_EQ(repaints.take(), 0);
    EXPECT_EQ(history.getSamples().size(), 104U);
}

TEST_F(QMPitchHistoryTest, NumbersThatAreNoneAreNothingToSee) {
    history.setSize(502, 173);
    TestWindow window(history);
    RepaintCounter& repaints = RepaintCounter::on(history);
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float cosine : {nan, infinity, -infinity, 1.5f, -1.5f}) {
        record.values[0] = cosine;
        record.values[1] = 1.0f;
        tickAfter(tickMs);
    }
    setOscillator(0, 100.0, nan);
    tickAfter(tickMs);
    setOscillator(0, 100.0, -1.0f);
    tickAfter(tickMs);
    // As faint as not to be there.
    setOscillator(0, 100.0, 1e-7f);
    tickAfter(tickMs);
    EXPECT_EQ(repaints.take(), 0);
}

TEST_F(QMPitchHistoryTest, ItsTextIsWhatSoundsNow) {
    const juce::String dash = juce::String::charToString(0x2013);
    EXPECT_EQ(history.getDisplayText(), dash + ", " + dash);
    setOscillator(0, 61.2, 0.5f);
    setOscillator(1, 55.0, 0.1f);
    tickAfter(tickMs);
    EXPECT_EQ(history.getDisplayText(), "61.2 Hz, 55.0 Hz");
    record.values[0] = 2.0f;
    tickAfter(tickMs);
    EXPECT_EQ(history.getDisplayText(), dash + ", 55.0 Hz");
    record.values[3] = 0.0f;
    tickAfter(tickMs);
    EXPECT_EQ(history.getDisplayText(), dash + ", " + dash);
}

TEST_F(QMPitchHistoryTest, AScreenReaderHearsItsText) {
    history.setSize(502, 173);
    TestWindow window(history);
    setOscillator(0, 100.0, 1.0f);
    tickAfter(tickMs);
    const auto handler = history.createAccessibilityHandler();
    ASSERT_NE(handler->getValueInterface(), nullptr);
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), history.getDisplayText());
    EXPECT_TRUE(handler->getValueInterface()->isReadOnly());
    EXPECT_FALSE(history.canTakeKeyboardFocus());
}

TEST_F(QMPitchHistoryTest, AnImpossibleLengthIsTheUsualOne) {
    EXPECT_EQ(history.getHistoryLength(), 3.0);
    EXPECT_EQ(QMPitchHistory(0.0).getHistoryLength(), 3.0);
    EXPECT_EQ(QMPitchHistory(std::numeric_limits<double>::quiet_NaN()).getHistoryLength(), 3.0);
    EXPECT_EQ(QMPitchHistory(8.0).getHistoryLength(), 8.0);
}
