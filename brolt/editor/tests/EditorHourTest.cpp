// SPDX-License-Identifier: GPL-3.0-or-later
// An editor that is open for an hour needs no more memory at its end than half an hour before.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "widgets/history/QMPitchHistory.h"

#include <cmath>
#include <cstddef>

#ifdef __GLIBC__
#    include <malloc.h>
#endif

namespace {

#ifdef __SANITIZE_ADDRESS__
// The same for less: the sanitizer makes every tick several times as long.
constexpr int ticksOfAnHour = 12000;
constexpr bool hasOwnAllocator = true;
#else
constexpr int ticksOfAnHour = 120000;
constexpr bool hasOwnAllocator = false;
#endif

constexpr int ticksOfAPicture = 500;
constexpr int tickMs = 30;
/// 3.1 seconds of them, and the newest.
constexpr std::size_t mostSamples = 3100 / tickMs + 1;
constexpr std::size_t slack = 64 * 1024;

/// Bytes that the program has; 0 where nobody can tell. Without what the toolkit keeps for a few
/// seconds, in case it will be wanted again.
std::size_t memoryInUse() {
    juce::ImageCache::releaseUnusedImages();
#ifdef __GLIBC__
    if (!hasOwnAllocator)
        return mallinfo2().uordblks + mallinfo2().hblkhd;
#endif
    return 0;
}

class EditorHour : public BroltEditorTest {
protected:
    /// Sound that never stays the same: sweeps of both oscillators, beats of the levels.
    void play(int tick) {
        const auto wave = [tick](double period) {
            return static_cast<float>(0.5 + 0.5 * std::sin(tick / period));
        };
        std::array<float, 10>& words = instance->analysis();
        words = {std::cos(0.06F * wave(7.0)), std::cos(0.08F * wave(5.0)), wave(11.0), wave(13.0)};
        for (std::size_t i = 4; i < words.size(); ++i)
            words[i] = 1.01F * wave(3.0 + static_cast<double>(i));
    }

    void runTicks(int first, int last) {
        for (int tick = first; tick < last; ++tick) {
            play(tick);
            tickAfter(tickMs);
            most = std::max(most, widget<QMPitchHistory>("wind").getSamples().size());
            if (tick % ticksOfAPicture == 0)
                static_cast<void>(picture());
            if (tick % 1000 == 0) {
                ASSERT_TRUE(runPendingMessages());
            }
        }
    }

    std::size_t most = 0; ///< samples in the history
};

TEST_F(EditorHour, endsWithTheMemoryOfItsMiddle) {
    openAt(120);
    const TestWindow window(*editor);
    runTicks(0, ticksOfAnHour / 2);
    const std::size_t capacity = widget<QMPitchHistory>("wind").getSamples().capacity();
    const std::size_t before = memoryInUse();
    runTicks(ticksOfAnHour / 2, ticksOfAnHour);
    const std::size_t after = memoryInUse();
    EXPECT_LE(after, before + slack);
    EXPECT_LE(before, after + slack);
    EXPECT_LE(most, mostSamples);
    EXPECT_EQ(widget<QMPitchHistory>("wind").getSamples().capacity(), capacity);
}

TEST_F(EditorHour, opensAndClosesAHundredTimesInTheSameMemory) {
    const auto openAndClose = [this] {
        openAt(100);
        beginTicking();
        static_cast<void>(picture());
        close();
        EXPECT_TRUE(runPendingMessages());
    };
    for (int i = 0; i < 10; ++i)
        openAndClose();
    const std::size_t before = memoryInUse();
    for (int i = 0; i < 100; ++i)
        openAndClose();
    EXPECT_LE(memoryInUse(), before + slack);
}

} // namespace
