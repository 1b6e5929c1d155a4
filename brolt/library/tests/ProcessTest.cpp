// SPDX-License-Identifier: GPL-3.0-or-later
// Processing as hosts ask for it. The sound is the model's, bit for bit.
#include "brolt/library/tests/support/ProcessingTest.h"

#include <pluginterfaces/vst/ivstprocesscontext.h>

#include <cmath>
#include <limits>

using Steinberg::kResultOk;

namespace {

class Process : public ProcessingTest {};

INSTANTIATE_TEST_SUITE_P(BothLayouts, Process, ::testing::Values(1, 2), Process::layoutName);

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
