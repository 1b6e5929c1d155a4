// SPDX-License-Identifier: GPL-3.0-or-later
// Hosts that ask for things in another order than the interface has it, twice, or too late.
#include "brolt/library/tests/support/EditRecorder.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <cmath>
#include <limits>

using Steinberg::kInvalidArgument;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

class ProcessOrder : public ::testing::Test {
protected:
    LibraryInstance instance;

    /// A block that may or may not be heard, but does no harm.
    static void expectHarmless(LibraryInstance& processed) {
        for (const int channels : {1, 2}) {
            AudioBlock block(channels, 64);
            block.fill(0.5F);
            EXPECT_EQ(processed.process(block), kResultOk);
            EXPECT_TRUE(block.guardsAreIntact());
            EXPECT_TRUE(block.outputIsFinite());
        }
    }

    void expectSound() {
        const Audio input = testAudio(2, 3000);
        ModelTwin twin;
        EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
    }

    tresult setUp(double rate, int frames, int size = Vst::kSample32) {
        Vst::ProcessSetup setup{Vst::kRealtime, size, frames, rate};
        return instance.processor().setupProcessing(setup);
    }
};

/// No entry of an object that is not initialised, or not any more, does harm.
void expectAsleep(LibraryInstance& object) {
    AudioBlock block(2, 64);
    block.fill(0.5F);
    object.process(block);
    EXPECT_TRUE(block.guardsAreIntact());
    EXPECT_TRUE(block.outputIsFinite());
    EXPECT_EQ(object.processor().getLatencySamples(), 0U);
    EXPECT_EQ(object.processor().getTailSamples(), 0U);
    EXPECT_EQ(object.controller().getParameterCount(), 0);
    Vst::ParameterInfo info{};
    EXPECT_NE(object.controller().getParameterInfo(0, info), kResultOk);
    EXPECT_EQ(object.normalised(14), 0.0);
    EXPECT_EQ(object.controller().setParamNormalized(14, 0.25), kResultFalse);
    Vst::String128 text{};
    EXPECT_EQ(object.controller().getParamStringByValue(14, 0.5, text), kResultFalse);
    Vst::ParamValue value = 0.0;
    char16_t number[] = u"1";
    EXPECT_EQ(object.controller().getParamValueByString(14, number, value), kResultFalse);
    EXPECT_TRUE(std::isfinite(object.controller().plainParamToNormalized(14, 1.0)));
    EXPECT_TRUE(std::isfinite(object.controller().normalizedParamToPlain(14, 1.0)));
    EXPECT_EQ(object.component().getBusCount(Vst::kAudio, Vst::kInput), 0);
    Vst::BusInfo bus{};
    EXPECT_EQ(object.component().getBusInfo(Vst::kAudio, Vst::kInput, 0, bus), kInvalidArgument);
    EXPECT_NE(object.arrange(2), kResultOk);
    object.component().setActive(true);
    object.component().setActive(false);
    object.processor().setProcessing(true);
    object.processor().setProcessing(false);
}

} // namespace

TEST_F(ProcessOrder, beforeInitialisationDoesNoHarm) {
    LibraryInstance object(LibraryInstance::Begin::created);
    expectAsleep(object);
    EXPECT_EQ(object.initialise(), kResultOk);
    EXPECT_EQ(object.controller().getParameterCount(), 15);
}

TEST_F(ProcessOrder, afterTerminationDoesNoHarm) {
    instance.start();
    (void)instance.render(testAudio(2, 1000));
    instance.stop();
    EXPECT_EQ(instance.component().terminate(), kResultOk);
    expectAsleep(instance);
}

TEST_F(ProcessOrder, terminatedTwiceDoesNoHarm) {
    EXPECT_EQ(instance.component().terminate(), kResultOk);
    instance.component().terminate();
    expectAsleep(instance);
}

TEST_F(ProcessOrder, terminatedWithoutInitialisationDoesNoHarm) {
    LibraryInstance object(LibraryInstance::Begin::created);
    object.component().terminate();
    object.component().terminate();
    EXPECT_EQ(object.initialise(), kResultOk);
}

TEST_F(ProcessOrder, terminatedWhileActiveDoesNoHarm) {
    EXPECT_EQ(instance.component().setActive(true), kResultOk);
    (void)instance.render(testAudio(2, 1000));
    EXPECT_EQ(instance.component().terminate(), kResultOk);
    expectAsleep(instance);
}

TEST_F(ProcessOrder, initialisedTwiceIsRefusedAndChangesNothing) {
    instance.set("gain", 3.0);
    EXPECT_EQ(instance.initialise(), kResultFalse);
    EXPECT_EQ(instance.component().getBusCount(Vst::kAudio, Vst::kInput), 1);
    EXPECT_EQ(instance.component().getBusCount(Vst::kAudio, Vst::kOutput), 1);
    EXPECT_EQ(instance.controller().getParameterCount(), 15);
    EXPECT_NEAR(instance.plain("gain"), 3.0, 1e-9);
}

TEST_F(ProcessOrder, initialisedAgainAfterTerminationBeginsAnew) {
    instance.set("gain", 3.0);
    ASSERT_EQ(instance.arrange(1), kResultOk);
    ASSERT_EQ(instance.component().terminate(), kResultOk);
    ASSERT_EQ(instance.initialise(), kResultOk);
    EXPECT_EQ(instance.component().getBusCount(Vst::kAudio, Vst::kInput), 1);
    Vst::BusInfo bus{};
    ASSERT_EQ(instance.component().getBusInfo(Vst::kAudio, Vst::kInput, 0, bus), kResultOk);
    EXPECT_EQ(textOf(bus.name), "Stereo In");
    EXPECT_EQ(instance.controller().getParameterCount(), 15);
    instance.start();
    expectSound();
}

TEST_F(ProcessOrder, initialisedWithoutAContextWorks) {
    LibraryInstance object(LibraryInstance::Begin::created);
    EXPECT_EQ(object.component().initialize(nullptr), kResultOk);
    EXPECT_EQ(object.controller().getParameterCount(), 15);
    object.start();
    (void)object.render(testAudio(2, 1000));
}

TEST_F(ProcessOrder, processedBeforeSetUpDoesNoHarm) {
    expectHarmless(instance);
    instance.start();
    expectSound();
}

TEST_F(ProcessOrder, processedWhileInactiveDoesNoHarm) {
    ASSERT_EQ(setUp(48000.0, 512), kResultOk);
    expectHarmless(instance);
    instance.start();
    instance.stop();
    expectHarmless(instance);
    instance.start();
    expectSound();
}

TEST_F(ProcessOrder, activatedTwiceWorks) {
    instance.start();
    EXPECT_EQ(instance.component().setActive(true), kResultOk);
    expectSound();
    EXPECT_EQ(instance.component().setActive(false), kResultOk);
    EXPECT_EQ(instance.component().setActive(false), kResultOk);
    expectHarmless(instance);
}

TEST_F(ProcessOrder, withBlocksOfTheOtherLayoutDoesNoHarm) {
    instance.start({.channels = 1});
    expectHarmless(instance);
    instance.stop();
    instance.start({.channels = 2});
    expectHarmless(instance);
}

TEST_F(ProcessOrder, isSetUpForSinglePrecisionOnly) {
    EXPECT_EQ(setUp(44100.0, 512, Vst::kSample64), kResultFalse);
    EXPECT_EQ(setUp(44100.0, 512, 5), kResultFalse);
    EXPECT_EQ(setUp(44100.0, 512), kResultOk);
}

TEST_F(ProcessOrder, isSetUpForSensibleRatesAndSizesOnly) {
    for (const double rate :
         {0.0, -1.0, -44100.0, std::nan(""), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()})
        EXPECT_EQ(setUp(rate, 512), kResultFalse) << rate;
    EXPECT_EQ(setUp(44100.0, -1), kResultFalse);
    EXPECT_EQ(setUp(44100.0, std::numeric_limits<Steinberg::int32>::min()), kResultFalse);
    for (const double rate : {1.0, 44100.0, 768000.0})
        EXPECT_EQ(setUp(rate, 512), kResultOk) << rate;
    for (const int frames : {1, 63, 65536, std::numeric_limits<Steinberg::int32>::max()})
        EXPECT_EQ(setUp(44100.0, frames), kResultOk) << frames;
    instance.start();
    expectSound();
}

TEST_F(ProcessOrder, hasNoLatencyAndNoTailAtAnyRate) {
    for (const double rate : {1.0, 44100.0, 768000.0}) {
        instance.start({.sampleRate = rate});
        EXPECT_EQ(instance.processor().getLatencySamples(), 0U) << rate;
        EXPECT_EQ(instance.processor().getTailSamples(), 0U) << rate;
        instance.stop();
    }
}

TEST_F(ProcessOrder, isIndifferentToHowManyInstancesThereAre) {
    std::vector<std::unique_ptr<LibraryInstance>> others;
    for (int i = 0; i < 4; ++i) {
        others.push_back(std::make_unique<LibraryInstance>());
        others.back()->start({.channels = 1 + i % 2});
        (void)others.back()->render(testAudio(1 + i % 2, 500, 3));
    }
    instance.start();
    expectSound();
    others.clear();
    instance.stop();
    instance.start();
    expectSound();
}
