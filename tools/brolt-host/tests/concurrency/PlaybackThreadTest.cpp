// SPDX-License-Identifier: GPL-3.0-or-later
//
// The thread that plays to an editor: its pace, its end, and what goes wrong on it.

#include "tools/brolt-host/editor/PlaybackThread.h"

#include "tools/brolt-host/HostError.h"

#include <gtest/gtest.h>

namespace {

class CountingRenderer : public Renderer {
public:
    void setParameter(std::int32_t, double) override {}

    [[nodiscard]] double parameter(std::int32_t) const override { return 0.0; }

    void process(float** inputs, float**, std::int32_t frames) override {
        const std::lock_guard lock(mutex);
        if (++blocks == failingBlock)
            throw HostError("no more");
        lastFrames = frames;
        hasSecondChannel = inputs[1] != nullptr;
        counted.notify_all();
    }

    void waitForBlocks(int wanted) {
        std::unique_lock lock(mutex);
        counted.wait(lock, [&] { return blocks >= wanted; });
    }

    int failingBlock = 0;
    int lastFrames = 0;
    bool hasSecondChannel = false;

private:
    std::mutex mutex;
    std::condition_variable counted;
    int blocks = 0;
};

} // namespace

TEST(PlaybackThread, playsBlockAfterBlockAtTheAudiosPace) {
    CountingRenderer renderer;
    const auto begin = std::chrono::steady_clock::now();
    {
        PlaybackThread playback(renderer, LoopedInput(std::nullopt), 2, 441);
        renderer.waitForBlocks(6);
    }
    // The first block is due at once, each of the others 10 ms after the one before.
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(50));
    EXPECT_EQ(renderer.lastFrames, 441);
    EXPECT_TRUE(renderer.hasSecondChannel);
}

TEST(PlaybackThread, endsWithoutWaitingForItsNextBlock) {
    CountingRenderer renderer;
    const auto begin = std::chrono::steady_clock::now();
    {
        constexpr std::int32_t twentyFourSeconds = 1 << 20;
        PlaybackThread playback(renderer, LoopedInput(std::nullopt), 1, twentyFourSeconds);
        renderer.waitForBlocks(1);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
    EXPECT_FALSE(renderer.hasSecondChannel);
}

TEST(PlaybackThread, whatEndsItIsToldToWhoeverAsks) {
    CountingRenderer renderer;
    renderer.failingBlock = 2;
    PlaybackThread playback(renderer, LoopedInput(std::nullopt), 1, 64);
    std::string reason;
    while (reason.empty()) {
        try {
            playback.throwIfFailed();
            std::this_thread::yield();
        } catch (const HostError& error) {
            reason = error.what();
        }
    }
    EXPECT_EQ(reason, "no more");
}
