// SPDX-License-Identifier: GPL-3.0-or-later
//
// The output meters, and when the processor loads their ballistics.

#include "brolt/signal/OutputMeter.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

OutputMeter meterWithHalves() {
    OutputMeter meter;
    meter.envelopeCoefficient = 0.5F;
    meter.meanSquareCoefficient = 0.75F;
    meter.peakDecay = 0.5F;
    return meter;
}

} // namespace

TEST(OutputMeter, followsEnvelopeMeanSquareAndPeak) {
    OutputMeter meter = meterWithHalves();
    const std::vector<float> samples{-1.0F, 0.25F};

    meter.follow(samples.data(), 1);
    EXPECT_EQ(meter.envelope, 0.5F);    // 0 + (1 - 0) / 2
    EXPECT_EQ(meter.meanSquare, 0.25F); // 3/4 * 0 + 1/4 * 1
    EXPECT_EQ(meter.peak, 1.0F);

    meter.follow(samples.data() + 1, 1);
    EXPECT_EQ(meter.envelope, 0.375F);      // 1/2 + (1/4 - 1/2) / 2
    EXPECT_EQ(meter.meanSquare, 0.203125F); // 3/4 * 1/4 + 1/4 * 1/16
    EXPECT_EQ(meter.peak, 0.5F);            // 1/2 * 1 is more than 1/4

    EXPECT_EQ(meter.meterKind, 4);
}

TEST(OutputMeter, reaches99PercentIn300MillisecondsAndFalls20DecibelsIn1700) {
    const Coefficients record = recordOf(defaultParameters());
    OutputMeter meter;
    meter.envelopeCoefficient = record.envelopeMeterCoefficient;
    meter.meanSquareCoefficient = record.meanSquareCoefficient;
    meter.peakDecay = record.peakDecay;

    const std::vector<float> ones(13230, 1.0F); // 0.3 s
    meter.follow(ones.data(), 13230);
    EXPECT_NEAR(meter.envelope, 0.99F, 1e-4F);
    EXPECT_EQ(meter.peak, 1.0F);

    const std::vector<float> silence(74970, 0.0F); // 1.7 s
    meter.follow(silence.data(), 74970);
    // The decay is a single-precision number near 1: up to 74970 * 2^-25 = 0.2 % off.
    EXPECT_NEAR(meter.peak, 0.1F, 5e-4F);
}

TEST(OutputMeter, clearZeroesTheValuesAndKeepsTheBallistics) {
    OutputMeter meter = meterWithHalves();
    const float one = 1.0F;
    meter.follow(&one, 1);
    meter.clear();
    EXPECT_EQ(wordsOf(meter), wordsOf(meterWithHalves()));
}

TEST(OutputMeter, keepsSayingThatItSawAnInfinityUntilItIsCleared) {
    OutputMeter meter = meterWithHalves();
    const std::vector<float> samples{std::numeric_limits<float>::infinity(), 0.5F, 0.5F};
    meter.follow(samples.data(), 3);
    EXPECT_FALSE(std::isfinite(meter.envelope));
    EXPECT_FALSE(std::isfinite(meter.meanSquare));
    EXPECT_FALSE(std::isfinite(meter.peak));
    meter.clear();
    meter.follow(samples.data() + 1, 2);
    EXPECT_EQ(meter.envelope, 0.375F);
}

TEST(OutputMeter, thePeakPassesOverNan) {
    OutputMeter meter = meterWithHalves();
    const std::vector<float> samples{1.0F, std::numeric_limits<float>::quiet_NaN()};
    meter.follow(samples.data(), 2);
    EXPECT_EQ(meter.peak, 0.5F);
}

TEST(Brolt, metersTheOutputOfEachChannelAfterTheMix) {
    TestProcessor<2> processor;
    Coefficients record = simpleRecord();
    record.wetMix = 0.0F;
    record.outputGain = 0.5F;
    processor.run({std::vector<float>{1.0F}, std::vector<float>{-0.5F}}, record);
    EXPECT_EQ(processor.state.outputMeters[0].peak, 0.5F);
    EXPECT_EQ(processor.state.outputMeters[1].peak, 0.25F);
    EXPECT_EQ(processor.state.outputMeters[1].envelope, 0.125F);
    EXPECT_EQ(processor.state.outputMeters[1].meanSquare, 0.015625F); // 1/4 * 1/16
}

TEST(Brolt, loadsTheBallisticsOfEveryMeterWhenTheRecordsVersionIsNew) {
    TestProcessor<2> processor;
    Coefficients record = simpleRecord();
    record.meterVersion = 7;
    record.peakDecay = 0.125F;
    record.envelopeMeterCoefficient = 0.25F;
    record.meanSquareCoefficient = 0.375F;
    processor.hold(0.0F, 1, record);
    EXPECT_EQ(processor.state.meterVersionSeen, 7);
    for (const OutputMeter& meter : processor.state.outputMeters) {
        EXPECT_EQ(meter.peakDecay, 0.125F);
        EXPECT_EQ(meter.envelopeCoefficient, 0.25F);
        EXPECT_EQ(meter.meanSquareCoefficient, 0.375F);
    }
}

TEST(Brolt, keepsTheBallisticsWhileTheRecordsVersionIsTheOneItSaw) {
    TestProcessor<1> processor;
    Coefficients record = simpleRecord();
    record.meterVersion = 7;
    processor.hold(0.0F, 1, record);
    record.peakDecay = 0.875F;
    processor.hold(0.0F, 1, record);
    EXPECT_EQ(processor.state.outputMeters[0].peakDecay, 0.5F);

    // An older version is as different as a newer one.
    record.meterVersion = 6;
    processor.hold(0.0F, 1, record);
    EXPECT_EQ(processor.state.outputMeters[0].peakDecay, 0.875F);
}

TEST(Brolt, aFreshRecordLeavesAFreshStatesBallisticsAlone) {
    // Both carry version -1, so the record's zeros do not reach the meters.
    TestProcessor<1> processor;
    processor.hold(0.5F, 10, Coefficients{});
    EXPECT_EQ(processor.state.outputMeters[0].envelopeCoefficient, 0.99999F);
    EXPECT_EQ(processor.state.outputMeters[0].meanSquareCoefficient, 0.9999F);
    EXPECT_EQ(processor.state.outputMeters[0].peakDecay, 0.9999F);
}
