// SPDX-License-Identifier: GPL-3.0-or-later
//
// How often displays follow a sound, and how much of it is played.

#include "tools/brolt-host/editor/ShownSound.h"

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/editor/FakeEditorView.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"
#include "tools/brolt-host/vst3/Vst3Instance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace {

class CountingRenderer : public Renderer {
public:
    void setParameter(std::int32_t, double) override {}

    [[nodiscard]] double parameter(std::int32_t) const override { return 0.0; }

    void process(float**, float**, std::int32_t frames) override { blocks.push_back(frames); }

    [[nodiscard]] std::int64_t frames() const {
        std::int64_t sum = 0;
        for (const std::int32_t block : blocks)
            sum += block;
        return sum;
    }

    std::vector<std::int32_t> blocks;
};

/// A second of audio at 44.1 kHz: a refresh is due after each 1323 frames, 33 times.
class ShownSoundTest : public testing::Test {
protected:
    ShownSoundTest() {
        plugIn.makeView = [this] { return fake.made(); };
        writeAudio(folder / "in.wav", 1, 44100, testAudio(1, 44100));
    }

    std::ptrdiff_t refreshesOf(std::int32_t blockSize,
                               std::optional<double> seconds = std::nullopt) {
        plan.blockSize = blockSize;
        EditorView view(instance.controller());
        playToView(view, renderer, LoopedInput(folder / "in.wav"), plan, seconds);
        return std::count(log.begin(), log.end(), "refreshDisplays");
    }

    const TemporaryFolder folder;
    CallLog log;
    FakeEditorView fake{log};
    FakeVst3PlugIn plugIn;
    Vst3Instance instance{plugIn.effectClass()};
    CountingRenderer renderer;
    RenderPlan plan;
};

} // namespace

TEST_F(ShownSoundTest, displaysFollowEveryThirtyMillisecondsAndAtTheEnd) {
    EXPECT_EQ(refreshesOf(512), 33 + 1);
    EXPECT_EQ(renderer.frames(), 44100);
    EXPECT_EQ(renderer.blocks.size(), 87U); // 86 whole ones and 68 frames
    EXPECT_EQ(renderer.blocks.back(), 68);
}

TEST_F(ShownSoundTest, aBlockLongerThanThatBringsAllItsRefreshes) {
    EXPECT_EQ(refreshesOf(1 << 20), 33 + 1);
    EXPECT_EQ(renderer.blocks, std::vector<std::int32_t>{44100});
}

TEST_F(ShownSoundTest, itsFirstSecondsAreEnough) {
    EXPECT_EQ(refreshesOf(512, 0.1), 3 + 1); // 4410 frames
    EXPECT_EQ(renderer.frames(), 4410);
}

TEST_F(ShownSoundTest, moreSecondsThanThereAreEndWithIt) {
    EXPECT_EQ(refreshesOf(512, 9.0), 33 + 1);
    EXPECT_EQ(renderer.frames(), 44100);
}
