// SPDX-License-Identifier: GPL-3.0-or-later
// The buffers that hosts hand to a process call: missing, shared, too few, too many.
#include "brolt/library/tests/support/ProcessingTest.h"

#include <array>
#include <limits>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

class ProcessBuffers : public ProcessingTest {};

INSTANTIATE_TEST_SUITE_P(BothLayouts, ProcessBuffers, ::testing::Values(1, 2),
                         ProcessBuffers::layoutName);

} // namespace

TEST_P(ProcessBuffers, ofNoOrNegativeFramesTouchesNothing) {
    start();
    for (const int32 frames : {0, -1, -512, std::numeric_limits<int32>::min()}) {
        AudioBlock block(channels, 64);
        block.fill(0.5F);
        block.data.numSamples = frames;
        EXPECT_EQ(instance.process(block), kResultOk) << frames;
        EXPECT_TRUE(block.outputIsUntouched()) << frames;
        EXPECT_TRUE(block.guardsAreIntact()) << frames;
    }
    expectSound(); // and the instance is still at rest
}

TEST_P(ProcessBuffers, withoutBusesTouchesNothing) {
    start();
    for (const auto& [inputs, outputs] :
         {std::pair{0, 1}, {1, 0}, {0, 0}, {-1, 1}, {1, -1}, {-1, -1}}) {
        AudioBlock block(channels, 64);
        block.fill(0.5F);
        block.data.numInputs = inputs;
        block.data.numOutputs = outputs;
        if (inputs <= 0)
            block.data.inputs = nullptr;
        if (outputs <= 0)
            block.data.outputs = nullptr;
        EXPECT_EQ(instance.process(block), kResultOk);
        EXPECT_TRUE(block.outputIsUntouched()) << inputs << " to " << outputs;
        EXPECT_TRUE(block.guardsAreIntact());
    }
    expectSound();
}

TEST_P(ProcessBuffers, withoutBuffersWritesNothing) {
    start();
    AudioBlock noBusses(channels, 64);
    noBusses.data.inputs = nullptr;
    noBusses.data.outputs = nullptr;
    EXPECT_EQ(instance.process(noBusses), kResultOk);
    AudioBlock noOutput(channels, 64);
    noOutput.outputBus.channelBuffers32 = nullptr;
    EXPECT_EQ(instance.process(noOutput), kResultOk);
    EXPECT_TRUE(noOutput.outputIsUntouched());
    EXPECT_TRUE(noOutput.guardsAreIntact());
    AudioBlock noChannel(channels, 64);
    std::fill(noChannel.outputPointers.begin(), noChannel.outputPointers.end(), nullptr);
    EXPECT_EQ(instance.process(noChannel), kResultOk);
    EXPECT_TRUE(noChannel.outputIsUntouched());
    EXPECT_TRUE(noChannel.guardsAreIntact());
}

TEST_P(ProcessBuffers, withoutInputIsSilent) {
    start();
    AudioBlock noBus(channels, 64);
    noBus.data.inputs = nullptr;
    EXPECT_EQ(instance.process(noBus), kResultOk);
    EXPECT_TRUE(noBus.outputIs(0.0F));
    EXPECT_TRUE(noBus.guardsAreIntact());
    AudioBlock noBuffers(channels, 64);
    noBuffers.inputBus.channelBuffers32 = nullptr;
    EXPECT_EQ(instance.process(noBuffers), kResultOk);
    EXPECT_TRUE(noBuffers.outputIs(0.0F));
    for (std::size_t missing = 0; missing < static_cast<std::size_t>(channels); ++missing) {
        AudioBlock noChannel(channels, 64);
        noChannel.fill(0.5F);
        noChannel.inputPointers[missing] = nullptr;
        EXPECT_EQ(instance.process(noChannel), kResultOk);
        EXPECT_TRUE(noChannel.outputIs(0.0F)) << missing;
        EXPECT_TRUE(noChannel.guardsAreIntact());
    }
}

TEST_P(ProcessBuffers, withFewerChannelsThanTheLayoutIsSilentInThoseThatAreThere) {
    start();
    AudioBlock fewIn(channels, 64);
    fewIn.fill(0.5F);
    fewIn.inputBus.numChannels = channels - 1;
    EXPECT_EQ(instance.process(fewIn), kResultOk);
    EXPECT_TRUE(fewIn.outputIs(0.0F));
    EXPECT_TRUE(fewIn.guardsAreIntact());

    AudioBlock fewOut(channels, 64);
    fewOut.fill(0.5F);
    fewOut.outputBus.numChannels = channels - 1;
    EXPECT_EQ(instance.process(fewOut), kResultOk);
    for (int c = 0; c < channels; ++c) {
        const float wanted = c < channels - 1 ? 0.0F : AudioBlock::untouched;
        for (const float sample : fewOut.output(c))
            ASSERT_EQ(sample, wanted) << c;
    }
    EXPECT_TRUE(fewOut.guardsAreIntact());
}

TEST_P(ProcessBuffers, withNegativeChannelCountsWritesNothing) {
    start();
    AudioBlock block(channels, 64);
    block.inputBus.numChannels = -1;
    block.outputBus.numChannels = -1;
    EXPECT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_TRUE(block.guardsAreIntact());
}

TEST_P(ProcessBuffers, withMoreChannelsOrBusesThanTheLayoutStaysInItsBuffers) {
    start();
    AudioBlock wide(channels + 4, 64);
    wide.fill(0.5F);
    EXPECT_EQ(instance.process(wide), kResultOk);
    EXPECT_TRUE(wide.guardsAreIntact());
    EXPECT_TRUE(wide.inputIs(0.5F));

    AudioBlock block(channels, 64);
    AudioBlock sidechain(1, 64);
    std::array<Vst::AudioBusBuffers, 2> inputs{block.inputBus, sidechain.inputBus};
    std::array<Vst::AudioBusBuffers, 2> outputs{block.outputBus, sidechain.outputBus};
    block.data.inputs = inputs.data();
    block.data.outputs = outputs.data();
    block.data.numInputs = 2;
    block.data.numOutputs = 2;
    EXPECT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.guardsAreIntact());
    EXPECT_TRUE(sidechain.guardsAreIntact());
}

TEST_P(ProcessBuffers, hearsNothingOfASidechain) {
    start();
    const Audio wanted = expected(1000);
    for (std::size_t at = 0; at < 6000; at += 1000) {
        AudioBlock block(channels, 1000);
        AudioBlock sidechain(1, 1000);
        sidechain.fill(0.9F);
        feed(block, at);
        std::array<Vst::AudioBusBuffers, 2> inputs{block.inputBus, sidechain.inputBus};
        block.data.inputs = inputs.data();
        block.data.numInputs = 2;
        ASSERT_EQ(instance.process(block), kResultOk);
        Audio output;
        for (int c = 0; c < channels; ++c)
            output.emplace_back(block.output(c).begin(), block.output(c).end());
        ASSERT_TRUE(sameBits(output, partOf(wanted, at, 1000)));
    }
}

TEST_P(ProcessBuffers, worksInPlace) {
    start();
    Audio output(input.size());
    for (std::size_t at = 0; at < 6000; at += 500) {
        AudioBlock block(channels, 500);
        feed(block, at);
        block.shareBuffers();
        ASSERT_EQ(instance.process(block), kResultOk);
        EXPECT_TRUE(block.guardsAreIntact());
        Audio part;
        for (int c = 0; c < channels; ++c)
            part.emplace_back(block.input(c).begin(), block.input(c).end());
        append(output, part);
    }
    EXPECT_TRUE(sameBits(output, expected(500)));
}

TEST_P(ProcessBuffers, leavesTheInputAsItIs) {
    start();
    AudioBlock block(channels, 512);
    block.fill(0.25F);
    ASSERT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.inputIs(0.25F));
}

TEST_P(ProcessBuffers, believesItsEarsAndNotTheSilenceFlags) {
    start();
    const Audio wanted = expected(1000);
    AudioBlock block(channels, 1000);
    feed(block, 0);
    block.inputBus.silenceFlags = ~0ULL;
    block.outputBus.silenceFlags = ~0ULL;
    ASSERT_EQ(instance.process(block), kResultOk);
    for (int c = 0; c < channels; ++c) {
        const Audio channel{{block.output(c).begin(), block.output(c).end()}};
        const Audio wantedChannel = partOf({wanted[static_cast<std::size_t>(c)]}, 0, 1000);
        EXPECT_TRUE(sameBits(channel, wantedChannel));
    }
    EXPECT_EQ(block.outputBus.silenceFlags, 0U);
}
