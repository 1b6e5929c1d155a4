// SPDX-License-Identifier: GPL-3.0-or-later
// The process call of the loaded library under the allocator and lock detector, and without a
// single system call. The program's own versions of the C library's functions stand before the
// originals for a library that is loaded later, too.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "tests/support/AudioThreadGuard.h"
#include "tests/support/SystemCallTrap.h"

#include <pluginterfaces/vst/ivstprocesscontext.h>
#include <public.sdk/source/vst/hosting/parameterchanges.h>

#include <chrono>
#include <memory>
#include <thread>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

/// A running instance with blocks of many sizes, all made before the watch begins.
class WatchedPlugIn {
public:
    explicit WatchedPlugIn(int channelCount, int32 mode = Vst::kRealtime)
        : channels(channelCount) {
        instance.start({.channels = channels, .mode = mode});
        for (const int frames : {0, 1, 16, 63, 64, 512, 1000, 4096}) {
            blocks.push_back(std::make_unique<AudioBlock>(channels, frames));
            fill(*blocks.back());
        }
        int32 index = 0;
        changes.addParameterData(14, index)->addPoint(0, 0.25, index);
        context.state = Vst::ProcessContext::kTempoValid;
        context.tempo = 140.0;
    }

    LibraryInstance instance;

    /// Every size twice, with everything a host may add.
    void processAll() {
        for (const std::unique_ptr<AudioBlock>& block : blocks) {
            block->data.inputParameterChanges = nullptr;
            block->data.processContext = nullptr;
            instance.processor().process(block->data);
            block->data.inputParameterChanges = &changes;
            block->data.processContext = &context;
            instance.processor().process(block->data);
        }
    }

    [[nodiscard]] bool wasHeard() const {
        return !blocks.back()->outputIsUntouched() && !blocks.back()->outputIs(0.0F);
    }

private:
    /// Loud, then the quiet tail in which numbers become subnormal.
    void fill(AudioBlock& block) const {
        for (int c = 0; c < channels; ++c) {
            const std::span<float> samples = block.input(c);
            for (std::size_t i = 0; i < samples.size(); ++i)
                samples[i] = i < 256 ? 0.9F : 1e-38F;
        }
    }

    int channels;
    std::vector<std::unique_ptr<AudioBlock>> blocks;
    Vst::ParameterChanges changes;
    Vst::ProcessContext context{};
};

class LibraryAudioThread : public ::testing::TestWithParam<int> {
protected:
    WatchedPlugIn plugIn{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(BothLayouts, LibraryAudioThread, ::testing::Values(1, 2),
                         [](const ::testing::TestParamInfo<int>& layout) {
                             return std::string(layout.param == 1 ? "mono" : "stereo");
                         });

} // namespace

TEST_P(LibraryAudioThread, processingTakesNoMemoryAndNoLock) {
    const AudioThreadReport report = watchAudioThread([&] { plugIn.processAll(); });
    EXPECT_EQ(report.violations, 0) << report.first;
    EXPECT_TRUE(plugIn.wasHeard());
}

// Hosts start their audio threads when they please: what a thread needs for itself must not be
// fetched by its first block.
TEST_P(LibraryAudioThread, theFirstBlocksOfAThreadTakeNoMemoryAndNoLock) {
    AudioThreadReport report;
    std::thread audio([&] { report = watchAudioThread([&] { plugIn.processAll(); }); });
    audio.join();
    EXPECT_EQ(report.violations, 0) << report.first;
    EXPECT_TRUE(plugIn.wasHeard());
}

TEST_P(LibraryAudioThread, blocksAfterChangesTakeNoMemoryAndNoLock) {
    for (int i = 0; i < 5; ++i)
        plugIn.instance.set("gain", i - 2.0);
    ASSERT_EQ(plugIn.instance.restore(plugIn.instance.state()), kResultOk);
    const AudioThreadReport report = watchAudioThread([&] { plugIn.processAll(); });
    EXPECT_EQ(report.violations, 0) << report.first;
}

TEST_P(LibraryAudioThread, blocksThatMakeNoSenseTakeNoMemoryAndNoLock) {
    AudioBlock noBuffers(GetParam(), 64);
    noBuffers.inputBus.channelBuffers32 = nullptr;
    AudioBlock noBuses(GetParam(), 64);
    noBuses.data.inputs = nullptr;
    noBuses.data.outputs = nullptr;
    AudioBlock otherLayout(3 - GetParam(), 64);
    AudioBlock doubles(GetParam(), 64);
    doubles.data.symbolicSampleSize = Vst::kSample64;
    const AudioThreadReport report = watchAudioThread([&] {
        for (AudioBlock* block : {&noBuffers, &noBuses, &otherLayout, &doubles})
            plugIn.instance.processor().process(block->data);
    });
    EXPECT_EQ(report.violations, 0) << report.first;
}

TEST_P(LibraryAudioThread, blocksOutsideOfItsLifeTakeNoMemoryAndNoLock) {
    LibraryInstance sleeping(LibraryInstance::Begin::created);
    AudioBlock block(GetParam(), 64);
    const AudioThreadReport report =
        watchAudioThread([&] { sleeping.processor().process(block.data); });
    EXPECT_EQ(report.violations, 0) << report.first;
}

TEST_P(LibraryAudioThread, processingMakesNoSystemCall) {
    plugIn.processAll(); // what is bound on first use is bound now
    const auto readClock = [] { (void)std::chrono::steady_clock::now(); };
    const SystemCallReport clock = runWithoutSystemCalls(readClock);
    if (!clock.available || !clock.finished)
        GTEST_SKIP() << "this kernel allows no system call filter, or its clock is a system call";
    const SystemCallReport report = runWithoutSystemCalls([&] { plugIn.processAll(); });
    EXPECT_TRUE(report.finished) << "system call " << report.systemCall << ", signal "
                                 << report.signal;
}

// In offline rendering the library sets parameters and prints them, in the process call itself:
// what it may not do otherwise, and what the detector has to see from here.
TEST_P(LibraryAudioThread, theDetectorSeesIntoTheLibrary) {
    WatchedPlugIn offline(GetParam(), Vst::kOffline);
    ::testing::internal::CaptureStdout();
    const AudioThreadReport report = watchAudioThread([&] { offline.processAll(); });
    EXPECT_NE(::testing::internal::GetCapturedStdout(), "");
    EXPECT_GT(report.violations, 0);
}

TEST_P(LibraryAudioThread, theDetectorSeesLocksAndAllocationsOfTheLibrary) {
    const AudioThreadReport locking =
        watchAudioThread([&] { plugIn.instance.controller().setParamNormalized(14, 0.25); });
    EXPECT_STREQ(locking.first, "pthread_mutex_lock");
    void* object = nullptr;
    const VST3::UID id = LoadedLibrary::shared().classOf(kVstAudioEffectClass).ID();
    Steinberg::IPluginFactory& factory = LoadedLibrary::shared().rawFactory();
    const AudioThreadReport allocating = watchAudioThread(
        [&] { factory.createInstance(id.data(), Steinberg::getTUID<Vst::IComponent>(), &object); });
    EXPECT_GT(allocating.violations, 0);
    EXPECT_STREQ(allocating.first, "malloc");
    ASSERT_NE(object, nullptr);
    static_cast<Vst::IComponent*>(object)->release();
}

TEST_P(LibraryAudioThread, aPlantedAllocationIsSeen) {
    const AudioThreadReport report = watchAudioThread([&] {
        plugIn.processAll();
        float* volatile planted = new float[64]; // volatile, or the compiler leaves both out
        delete[] planted;
        plugIn.processAll();
    });
    EXPECT_EQ(report.violations, 2) << report.first; // taken and given back, and nothing else
}
