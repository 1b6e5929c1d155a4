// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mix formula, the smoothing of the gains and how they come to rest.

#include "brolt/signal/SmoothedGains.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

namespace {

constexpr GainSmoothing halfway{0.5F, 0.5F};

} // namespace

TEST(SmoothedGains, mixesTonesAndDrySignal) {
    // ((2 * 0.25 + 0.5 * 0.5) * 0.75 * 0.5 + (1 - 0.75) * 0.5) * 4
    //   = (0.75 * 0.375 + 0.125) * 4 = (0.28125 + 0.125) * 4 = 1.625
    const float osc1 = 0.5F;
    const float osc2 = 0.25F;
    const float level = 0.5F;
    const float input = 0.5F;
    float output = 0.0F;
    const SmoothedGains gains{4.0F, 0.75F, 0.5F, 2.0F};
    mixChannel({&osc1, &osc2, &level}, &input, &output, 1, gains, gains, halfway);
    EXPECT_EQ(output, 1.625F);
}

TEST(SmoothedGains, aSampleUsesTheGainsBeforeTheirStep) {
    // Dry signal of 1 while the output gain goes from 1 to 3 in halves: 1, 2, 2.5.
    const std::vector<float> zeros(3, 0.0F);
    const std::vector<float> input(3, 1.0F);
    std::vector<float> output(3);
    const SmoothedGains reached =
        mixChannel({zeros.data(), zeros.data(), zeros.data()}, input.data(), output.data(), 3,
                   {1.0F, 0.0F, 0.0F, 8.0F}, {3.0F, 0.0F, 1.0F, 0.0F}, halfway);
    EXPECT_EQ(output, (std::vector<float>{1.0F, 2.0F, 2.5F}));
    EXPECT_EQ(reached.output, 2.75F);
    EXPECT_EQ(reached.wet, 0.0F);
    EXPECT_EQ(reached.osc1, 0.875F);
    EXPECT_EQ(reached.osc2, 1.0F);
}

TEST(SmoothedGains, eachGainSettlesByItself) {
    const SmoothedGains start{1.0F, 2.0F, 3.0F, 4.0F};
    const SmoothedGains reached{1.0F, 2.5F, 3.0F, 4.5F};
    const SmoothedGains targets{10.0F, 20.0F, 30.0F, 40.0F};
    const SmoothedGains settled = settledGains(start, reached, targets);
    EXPECT_EQ(settled.output, 10.0F);
    EXPECT_EQ(settled.wet, 2.5F);
    EXPECT_EQ(settled.osc1, 30.0F);
    EXPECT_EQ(settled.osc2, 4.5F);
}

TEST(Brolt, theFirstBlockStartsWithItsGainsAtTheirTargets) {
    TestProcessor<1> processor;
    Coefficients record = simpleRecord();
    record.outputGain = 0.25F;
    record.wetMix = 0.0F;
    EXPECT_FLOAT_EQ(processor.hold(1.0F, 1, record)[0], 0.25F);
    EXPECT_EQ(processor.state.firstBlock, 0);

    // The second block's gain of 1 is approached: 0.25, 0.25 + 0.001 * 0.75 = 0.25075, ...
    record.outputGain = 1.0F;
    const std::vector<float> output = processor.hold(1.0F, 3, record);
    EXPECT_NEAR(output[0], 0.25F, 1e-6F);
    EXPECT_NEAR(output[1], 0.25075F, 1e-6F);
    EXPECT_NEAR(output[2], 0.25149925F, 1e-6F);
}

TEST(Brolt, aGainRestsOffItsTargetUntilTheEndOfABlockPutsItThere) {
    TestProcessor<1> processor;
    Coefficients record = simpleRecord();
    record.outputGain = 0.0F;
    processor.hold(0.0F, 1, record);

    record.outputGain = 0.3F;
    float previous = -1.0F;
    for (int block = 0; block < 1000 && processor.state.outputGain != 0.3F; ++block) {
        previous = processor.state.outputGain;
        processor.hold(0.0F, 64, record);
    }
    // The smoother itself stopped short of it, where its step is less than half a unit in the last
    // place: 0.001 * distance < 2^-26, that is up to 1.5e-5 away.
    EXPECT_EQ(processor.state.outputGain, 0.3F);
    EXPECT_NE(previous, 0.3F);
    EXPECT_NEAR(previous, 0.3F, 3e-5F);

    // And there it stays.
    processor.hold(0.0F, 4096, record);
    EXPECT_EQ(processor.state.outputGain, 0.3F);
}

TEST(Brolt, masterBypassPassesTheInputUnchangedOnceTheGainsHaveSettled) {
    BroltParameters parameters = defaultParameters();
    parameters.outputGain = -7.5F;
    TestProcessor<2> processor;
    processor.hold(0.5F, 1000, recordOf(parameters, 2));

    parameters.masterBypass = true;
    const Coefficients bypassed = recordOf(parameters, 3);
    TestRandom random(21);
    std::array<std::vector<float>, 2> input;
    for (std::vector<float>& channel : input)
        channel.resize(512);
    const auto runNoise = [&] {
        for (std::vector<float>& channel : input) {
            for (float& sample : channel)
                sample = random.sample();
        }
        return processor.run(input, bypassed);
    };

    // The wet share falls by 0.999 a sample: about 87000 samples to the smallest normal number.
    EXPECT_NE(runNoise(), input);
    for (int block = 0; block < 400; ++block)
        runNoise();
    EXPECT_EQ(processor.state.outputGain, 1.0F);
    EXPECT_EQ(processor.state.wetMix, 0.0F);
    const std::array<float, 10> before = processor.snapshot();
    EXPECT_EQ(runNoise(), input);
    const std::array<float, 10> after = processor.snapshot();
    for (std::size_t word = 0; word < after.size(); ++word)
        EXPECT_NE(after[word], before[word]) << word;
}

TEST(Brolt, everyChannelSeesTheSameCourseOfTheGains) {
    TestProcessor<2> processor;
    Coefficients record = simpleRecord();
    record.wetMix = 0.0F;
    record.outputGain = 0.0F;
    processor.hold(1.0F, 1, record);
    record.outputGain = 1.0F;
    const std::vector<float> ones(700, 1.0F);
    const auto output = processor.run({ones, ones}, record);
    EXPECT_EQ(output[0], output[1]);
    EXPECT_GT(output[0][699], output[0][0]);
}
