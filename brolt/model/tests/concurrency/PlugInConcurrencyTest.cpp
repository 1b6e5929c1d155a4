// SPDX-License-Identifier: GPL-3.0-or-later
// One audio thread processes while a control thread changes parameters, fetches meters and resets
// them: no torn record, no lost last change, nothing for the thread sanitizer to find.
#include "brolt/model/tests/PlugInTestKit.h"
#include "services/tests/TestWorkingDirectory.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <thread>

namespace {

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(new TestWorkingDirectory);

template <typename Channels>
class PlugInConcurrency : public ::testing::Test {
protected:
    static constexpr int channels = Channels::value;
    static constexpr int changes = 3000;

    InProcessHost host;
    PlugInUnderTest<channels> test;
    std::atomic<bool> stop{false};
    std::atomic<int> blocksRun{0};
    std::thread audio;

    void SetUp() override {
        test.plugIn.createProcessingState();
        test.plugIn.setProcessingHost(&host);
    }

    ~PlugInConcurrency() override { test.plugIn.setProcessingHost(nullptr); }

    /// Runs blocks until told to stop; `afterBlock` sees the record each one used.
    template <typename AfterBlock>
    void startAudio(AfterBlock afterBlock) {
        audio = std::thread([this, afterBlock]() mutable {
            TestBlock<channels> block(32, 0.5F);
            while (!stop.load()) {
                test.process(block);
                afterBlock(*test.plugIn.coefficientsInUse());
                ++blocksRun;
            }
        });
        while (blocksRun.load() == 0)
            std::this_thread::yield();
    }

    /// Lets at least `count` more blocks run, then ends the audio thread.
    void endAudioAfter(int count) {
        const int wanted = blocksRun.load() + count;
        while (blocksRun.load() < wanted)
            std::this_thread::yield();
        stop = true;
        audio.join();
    }
};

TYPED_TEST_SUITE(PlugInConcurrency, BothLayouts, LayoutName);

} // namespace

TYPED_TEST(PlugInConcurrency, everyRecordInUseIsWholeAndTheLastChangeArrives) {
    // Gain and mix are changed together, so a record made of two would show.
    std::atomic<int> torn{0};
    std::atomic<int> backwards{0};
    this->startAudio([&, last = -1](const Coefficients& used) mutable {
        const double gain = 20.0 * std::log10(static_cast<double>(used.outputGain));
        const double mix = static_cast<double>(used.wetMix) * 100.0;
        const bool beforeTheFirst = used.meterVersion == 2;
        if (!beforeTheFirst && std::abs(gain - (mix / 10.0 - 5.0)) > 1e-3)
            ++torn;
        if (used.meterVersion < last)
            ++backwards;
        last = used.meterVersion;
    });
    for (int i = 0; i < this->changes; ++i) {
        const double step = i % 100;
        this->test.plugIn.beginAccumulate();
        this->test.set("wetd", step);
        this->test.set("gain", step / 10.0 - 5.0);
        this->test.plugIn.endAccumulate();
    }
    this->endAudioAfter(5);
    EXPECT_EQ(torn.load(), 0);
    EXPECT_EQ(backwards.load(), 0);
    EXPECT_EQ(this->test.plugIn.coefficientsInUse()->meterVersion, 2 + this->changes);
}

TYPED_TEST(PlugInConcurrency, metersAreFetchedAndResetWhileBlocksRun) {
    constexpr int N = TypeParam::value;
    this->startAudio([](const Coefficients&) {});
    for (int i = 0; i < this->changes; ++i) {
        this->test.plugIn.updateMeters();
        const NoxMeterRecord* record = this->test.plugIn.meterRecord(0);
        ASSERT_NE(record, nullptr);
        ASSERT_TRUE(std::isfinite(record->values[0]));
        ASSERT_GE(record->values[4], 0.0F);
        if (i % 3 == 0)
            this->test.send(0x1000001, nullptr);
        if (i % 7 == 0)
            this->test.set("afre", 50.0 + i % 300);
        if (i % 11 == 0)
            this->test.set("osc2", i % 2);
    }
    // A display that keeps asking sees the signal again after the last reset.
    this->endAudioAfter(100);
    this->test.plugIn.updateMeters();
    EXPECT_GT(this->test.plugIn.meterRecord(0)->values[0], 0.0F);
    EXPECT_GT(this->test.plugIn.meterRecord(N)->values[1], 0.0F);
}
