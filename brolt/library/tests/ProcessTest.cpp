// SPDX-License-Identifier: GPL-3.0-or-later
// Processing as hosts ask for it. The sound is the model's, bit for bit.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <pluginterfaces/vst/ivstprocesscontext.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

class Process : public ::testing::TestWithParam<int> {
protected:
    LibraryInstance instance;
    int channels = GetParam();
    Audio input = testAudio(channels, 6000);

    void start(double rate = 44100.0) {
        instance.start({.channels = channels, .sampleRate = rate});
    }

    /// With small blocks announced. At one sample a second, so that two of them last for longer
    /// than the test.
    void startAnnouncing(int mostFrames) {
        instance.start({.channels = channels, .sampleRate = 1.0, .mostFrames = mostFrames});
    }

    [[nodiscard]] Audio expected(int blockSize = 512) const {
        return ModelTwin(channels).render(input, blockSize);
    }

    /// From rest, the instance sounds as it should.
    void expectSound() { EXPECT_TRUE(sameBits(instance.render(input), expected())); }
};

INSTANTIATE_TEST_SUITE_P(BothLayouts, Process, ::testing::Values(1, 2),
                         [](const ::testing::TestParamInfo<int>& layout) {
                             return std::string(layout.param == 1 ? "mono" : "stereo");
                         });

} // namespace

TEST_P(Process, soundsAsTheModel) {
    start();
    expectSound();
    const Audio silence(static_cast<std::size_t>(channels), std::vector<float>(6000));
    EXPECT_FALSE(sameBits(expected(), silence)); // there is something to hear
}

TEST_P(Process, soundsTheSameInBlocksOfEverySize) {
    for (const int size : {1, 7, 63, 64, 511, 1024, 4096}) {
        SCOPED_TRACE(size);
        startAnnouncing(std::max(size, 64));
        EXPECT_TRUE(sameBits(instance.render(input, size), expected(size)));
        instance.stop();
    }
}

TEST_P(Process, takesChangingSizesAndLargerOnesThanAnnounced) {
    startAnnouncing(64);
    ModelTwin twin(channels);
    Audio library;
    Audio model;
    std::size_t at = 0;
    for (const std::size_t size : {64U, 1U, 0U, 3000U, 17U, 64U, 0U, 2000U, 33U}) {
        const Audio part = partOf(input, at, size);
        if (size == 0) {
            AudioBlock block(channels, 0);
            EXPECT_EQ(instance.process(block), kResultOk);
            EXPECT_TRUE(block.guardsAreIntact());
        }
        append(library, instance.render(part, 4096));
        append(model, twin.render(part, 4096));
        at += size;
    }
    EXPECT_TRUE(sameBits(library, model));
}

TEST_P(Process, ofNoOrNegativeFramesTouchesNothing) {
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

TEST_P(Process, withoutBusesTouchesNothing) {
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

TEST_P(Process, withoutBuffersWritesNothing) {
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

TEST_P(Process, withoutInputIsSilent) {
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

TEST_P(Process, withFewerChannelsThanTheLayoutIsSilentInThoseThatAreThere) {
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

TEST_P(Process, withNegativeChannelCountsWritesNothing) {
    start();
    AudioBlock block(channels, 64);
    block.inputBus.numChannels = -1;
    block.outputBus.numChannels = -1;
    EXPECT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_TRUE(block.guardsAreIntact());
}

TEST_P(Process, withMoreChannelsOrBusesThanTheLayoutStaysInItsBuffers) {
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

TEST_P(Process, hearsNothingOfASidechain) {
    start();
    const Audio wanted = expected(1000);
    for (std::size_t at = 0; at < 6000; at += 1000) {
        AudioBlock block(channels, 1000);
        AudioBlock sidechain(1, 1000);
        sidechain.fill(0.9F);
        for (std::size_t c = 0; c < input.size(); ++c)
            std::copy_n(input[c].begin() + static_cast<std::ptrdiff_t>(at), 1000,
                        block.input(static_cast<int>(c)).begin());
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

TEST_P(Process, worksInPlace) {
    start();
    Audio output(input.size());
    for (std::size_t at = 0; at < 6000; at += 500) {
        AudioBlock block(channels, 500);
        for (std::size_t c = 0; c < input.size(); ++c)
            std::copy_n(input[c].begin() + static_cast<std::ptrdiff_t>(at), 500,
                        block.input(static_cast<int>(c)).begin());
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

TEST_P(Process, leavesTheInputAsItIs) {
    start();
    AudioBlock block(channels, 512);
    block.fill(0.25F);
    ASSERT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.inputIs(0.25F));
}

TEST_P(Process, believesItsEarsAndNotTheSilenceFlags) {
    start();
    const Audio wanted = expected(1000);
    AudioBlock block(channels, 1000);
    for (std::size_t c = 0; c < input.size(); ++c)
        std::copy_n(input[c].begin(), 1000, block.input(static_cast<int>(c)).begin());
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

TEST_P(Process, inDoublePrecisionIsRefusedAndTouchesNothing) {
    EXPECT_EQ(instance.processor().canProcessSampleSize(Vst::kSample32), kResultOk);
    EXPECT_NE(instance.processor().canProcessSampleSize(Vst::kSample64), kResultOk);
    EXPECT_NE(instance.processor().canProcessSampleSize(7), kResultOk);
    start();
    AudioBlock block(channels, 64);
    block.fill(0.5F);
    block.data.symbolicSampleSize = Vst::kSample64;
    EXPECT_EQ(instance.process(block), Steinberg::kResultFalse);
    EXPECT_TRUE(block.outputIsUntouched());
    EXPECT_TRUE(block.inputIs(0.5F));
    expectSound();
}

TEST_P(Process, readsTheHostsContextAndDoesWithoutOne) {
    start();
    Vst::ProcessContext context{};
    context.state = Vst::ProcessContext::kTempoValid | Vst::ProcessContext::kPlaying;
    context.tempo = 93.0;
    AudioBlock block(channels, 64);
    block.data.processContext = &context;
    EXPECT_EQ(instance.process(block), kResultOk);
    context.tempo = std::nan("");
    EXPECT_EQ(instance.process(block), kResultOk);
    block.data.processContext = nullptr;
    EXPECT_EQ(instance.process(block), kResultOk);
    EXPECT_TRUE(block.outputIsFinite());
}

TEST_P(Process, soundsTheSameAtEverySampleRate) {
    // Coefficients are those of 44.1 kHz at every rate.
    for (const double rate :
         {1.0, 8000.0, 22050.0, 44100.0, 48000.0, 96000.0, 192000.0, 768000.0}) {
        SCOPED_TRACE(rate);
        start(rate);
        expectSound();
        instance.stop();
    }
}

TEST_P(Process, passesOnWhatIsNoNumberAndRecovers) {
    start();
    ModelTwin twin(channels);
    Audio strange = partOf(input, 0, 2000);
    for (std::size_t i = 0; i < 100; ++i) {
        strange[0][500 + i] = std::numeric_limits<float>::quiet_NaN();
        strange[0][700 + i] = std::numeric_limits<float>::infinity();
        strange[0][900 + i] = -1e38F;
        strange[0][1100 + i] = 1e-40F;
    }
    EXPECT_TRUE(sameBits(instance.render(strange), twin.render(strange)));
    const Audio after = instance.render(input);
    EXPECT_TRUE(sameBits(after, twin.render(input)));
    for (const std::vector<float>& channel : after)
        EXPECT_TRUE(std::isfinite(channel.back()));
}

TEST_P(Process, startsFromRestAfterEachActivation) {
    start();
    (void)instance.render(testAudio(channels, 3000, 9));
    instance.stop();
    start();
    expectSound();
}

TEST_P(Process, startsFromRestAfterThePause) {
    start();
    (void)instance.render(testAudio(channels, 3000, 9));
    instance.processor().setProcessing(false);
    instance.processor().setProcessing(true);
    expectSound();
}

TEST_P(Process, goesOnWhereProcessingIsSaidToStartAgain) {
    start();
    ModelTwin twin(channels);
    const Audio first = testAudio(channels, 3000, 9);
    EXPECT_TRUE(sameBits(instance.render(first), twin.render(first)));
    instance.processor().setProcessing(true);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_P(Process, isAtRestAfterEitherActivationCall) {
    start();
    for (const bool state : {true, true, false, false, true}) {
        (void)instance.render(testAudio(channels, 1000, 9));
        EXPECT_EQ(instance.component().setActive(state), kResultOk);
        expectSound();
    }
}
