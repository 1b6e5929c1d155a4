// SPDX-License-Identifier: GPL-3.0-or-later
// A host processes on one thread and restores, saves, automates and activates on others.
//
// The two states that are restored alternately let a constant input of 0.5 out as 0.5: one as it
// is, the other as half of it with twice the gain. A block that took the gain of one and the mix of
// the other would end near 0.25 or near 1. On the way from one to the other both change together,
// from 1 * 1 to 0.5 * 2, and the product (1 - s / 2) (1 + s) is at most 9 / 8 in between.
#include "brolt/library/tests/support/HostStream.h"
#include "brolt/library/tests/support/HostWait.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/StateFixtures.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <atomic>
#include <cmath>
#include <thread>

using Steinberg::kResultOk;

namespace {

constexpr float constantInput = 0.5F;
constexpr float lowest = 0.49F;
constexpr float highest = 0.5625F + 0.01F;
/// Long enough for the smoothed gains to arrive: they move by a thousandth of the way each sample.
constexpr int blockFrames = 4096;

Bytes stateOf(double gain, double mix) {
    RecordFixture record;
    record.values = {{"gain", gain}, {"wetd", mix}, {"osc1", 0.0}, {"osc2", 0.0}};
    return savedState(record);
}

const Bytes& asItIs() {
    static const Bytes state = stateOf(0.0, 0.0);
    return state;
}

const Bytes& halfAndTwice() {
    static const Bytes state = stateOf(20.0 * std::log10(2.0), 50.0);
    return state;
}

/// Whether a saved state is one of the two as a whole.
bool isWhole(const Bytes& state) {
    const auto record = readRecordPlainly(std::span(state).subspan(8));
    if (!record)
        return false;
    const double gain = record->values.at(fourCharCode("gain"));
    const double mix = record->values.at(fourCharCode("wetd"));
    return (mix == 0.0 && gain == 0.0) || (mix == 50.0 && std::abs(gain - 6.02) < 0.01);
}

class StateWhileProcessing : public ::testing::Test {
protected:
    LibraryInstance instance;
    std::atomic<bool> stop{false};
    std::atomic<int> blocks{0};
    std::atomic<int> torn{0};
    std::atomic<int> silent{0};
    std::thread audio;

    void SetUp() override {
        ASSERT_EQ(instance.restore(asItIs()), kResultOk);
        instance.start();
        audio = std::thread([this] { processUntilStopped(); });
        ASSERT_TRUE(waitUntil([this] { return blocks > 0; }, std::chrono::seconds(30)));
    }

    ~StateWhileProcessing() override { endAudio(); }

    void endAudio() {
        stop = true;
        if (audio.joinable())
            audio.join();
    }

    void processUntilStopped() {
        AudioBlock block(2, blockFrames);
        block.fill(constantInput);
        while (!stop) {
            if (instance.process(block) != kResultOk || !block.guardsAreIntact())
                ++torn;
            note(block);
            ++blocks;
        }
    }

    void note(AudioBlock& block) {
        if (block.outputIs(0.0F)) {
            ++silent;
            return;
        }
        for (const int channel : {0, 1}) {
            for (const float sample : block.output(channel)) {
                if (!(sample > lowest && sample < highest)) {
                    ++torn;
                    return;
                }
            }
        }
    }

    /// Runs something on a thread of its own, again and again, for as long as another runs.
    class Beside {
    public:
        template <typename Work>
        explicit Beside(Work work)
            : thread([this, work]() mutable {
                while (!ended)
                    work();
            }) {}

        ~Beside() {
            ended = true;
            thread.join();
        }

        Beside(const Beside&) = delete;
        Beside& operator=(const Beside&) = delete;

    private:
        std::atomic<bool> ended{false};
        std::thread thread;
    };

    void restoreAlternately(int count) {
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(instance.restore(i % 2 == 0 ? halfAndTwice() : asItIs()), kResultOk);
            // Blocks with each of the two, not only with the last of many.
            const int before = blocks;
            EXPECT_TRUE(waitUntil([&] { return blocks > before; }, std::chrono::seconds(30)));
        }
    }
};

} // namespace

TEST_F(StateWhileProcessing, noBlockMixesTwoStates) {
    restoreAlternately(100);
    endAudio();
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(silent, 0);
}

TEST_F(StateWhileProcessing, aMixtureWouldBeHeard) {
    ASSERT_EQ(instance.restore(stateOf(6.02, 0.0)), kResultOk);
    EXPECT_TRUE(waitUntil([&] { return torn > 0; }, std::chrono::seconds(30)));
    endAudio();
}

TEST_F(StateWhileProcessing, restoringAtFullSpeedMixesNoStates) {
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(instance.restore(i % 2 == 0 ? halfAndTwice() : asItIs()), kResultOk);
    endAudio();
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(silent, 0);
}

TEST_F(StateWhileProcessing, savingSeesWholeStates) {
    std::atomic<int> saved{0};
    std::atomic<int> mixed{0};
    {
        const Beside saving([&] {
            HostStream stream;
            if (instance.component().getState(&stream) != kResultOk || !isWhole(stream.bytes))
                ++mixed;
            ++saved;
        });
        restoreAlternately(60);
        EXPECT_TRUE(waitUntil([&] { return saved > 0; }, std::chrono::seconds(30)));
    }
    endAudio();
    EXPECT_EQ(mixed, 0);
    EXPECT_EQ(torn, 0);
}

TEST_F(StateWhileProcessing, theHostAutomatesMeanwhile) {
    {
        // Times of detectors: without oscillators they are not heard, but make records, too.
        const Beside automating([&, step = 0]() mutable {
            step = (step + 1) % 100;
            instance.controller().setParamNormalized(9, step / 100.0);
            (void)instance.controller().getParamNormalized(9);
            Vst::ParameterInfo info{};
            (void)instance.controller().getParameterInfo(9, info);
        });
        restoreAlternately(60);
    }
    endAudio();
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(silent, 0);
}

TEST_F(StateWhileProcessing, theHostActivatesMeanwhile) {
    {
        const Beside restarting([&, on = false]() mutable {
            on = !on;
            instance.component().setActive(on);
            instance.processor().setProcessing(!on);
            std::this_thread::yield();
        });
        restoreAlternately(60);
    }
    const int before = blocks;
    EXPECT_TRUE(waitUntil([&] { return blocks > before + 1; }, std::chrono::seconds(30)));
    endAudio();
    EXPECT_EQ(torn, 0); // silent blocks are the host's own doing
    EXPECT_LT(silent, blocks);
}

TEST_F(StateWhileProcessing, refusedStatesAreNotHeard) {
    Bytes damaged = halfAndTwice();
    damaged.resize(damaged.size() - 5);
    for (int i = 0; i < 300; ++i)
        EXPECT_NE(instance.restore(damaged), kResultOk);
    const int before = blocks;
    EXPECT_TRUE(waitUntil([&] { return blocks > before; }, std::chrono::seconds(30)));
    endAudio();
    EXPECT_EQ(torn, 0);
    EXPECT_NEAR(instance.plain("gain"), 0.0, 1e-9);
}
