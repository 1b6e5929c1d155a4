// SPDX-License-Identifier: GPL-3.0-or-later
// The reset after a host has stopped calling process, without telling anybody: once, when nothing
// came for two blocks and a tenth of a second, and never while blocks come.
//
// It can only be heard: an instance at rest answers the same input with the same bits as a new one.
// Listening is a block, and starts the wait anew, so each look waits for longer than the one
// before.
#include "brolt/library/tests/support/HostWait.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr auto shortestThreshold = 100ms;
/// Looks give up after this long a silence.
constexpr auto longestSilence = 20s;

class Watch : public ::testing::Test {
protected:
    const Audio probe = testAudio(2, 256, 77);
    const Audio fromRest = ModelTwin().render(probe);

    /// Blocks of 64 frames at 44.1 kHz: a tenth of a second is the threshold.
    static HostSession shortBlocks() { return {.mostFrames = 64}; }

    /// Leaves the instance in the midst of a stroke.
    void play(LibraryInstance& instance) { (void)instance.render(testAudio(2, 1000), 64); }

    /// Lets time pass until the instance is found at rest; by being looked at it is no more.
    ::testing::AssertionResult comesToRest(LibraryInstance& instance,
                                           Clock::duration firstSilence) {
        for (auto silence = firstSilence; silence < longestSilence; silence *= 2) {
            letPass(std::chrono::duration_cast<std::chrono::milliseconds>(silence));
            if (sameBits(instance.render(probe, 256), fromRest))
                return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "it was never reset";
    }
};

} // namespace

TEST_F(Watch, bringsAnInstanceToRestAfterTheHostHasStopped) {
    LibraryInstance instance;
    instance.start(shortBlocks());
    play(instance);
    EXPECT_TRUE(comesToRest(instance, 250ms));
    play(instance);
    EXPECT_TRUE(comesToRest(instance, 250ms)); // and again
}

TEST_F(Watch, doesSoForEachInstance) {
    LibraryInstance first;
    LibraryInstance second;
    first.start(shortBlocks());
    second.start(shortBlocks());
    play(first);
    play(second);
    EXPECT_TRUE(comesToRest(first, 250ms));
    EXPECT_TRUE(comesToRest(second, 1ms)); // the same silence was long enough for both
}

TEST_F(Watch, leavesAnInstanceAloneThatIsProcessed) {
    LibraryInstance instance;
    instance.start(shortBlocks());
    ModelTwin twin;
    const Audio song = testAudio(2, 64 * 60);
    Audio library;
    for (std::size_t block = 0; block < 60; ++block) {
        const auto before = Clock::now();
        append(library, instance.render(partOf(song, block * 64, 64), 64));
        letPass(15ms); // 0.9 seconds in all: time for nine looks
        if (Clock::now() - before >= shortestThreshold)
            GTEST_SKIP() << "the machine was too slow to keep a host's pace";
    }
    EXPECT_TRUE(sameBits(library, twin.render(song, 64)));
}

TEST_F(Watch, waitsForTwoBlocksWhereTheseAreLong) {
    // 4410 frames at 8820 Hz are half a second; two of them a whole one.
    constexpr auto threshold = 1000ms;
    LibraryInstance instance;
    instance.start({.sampleRate = 8820.0, .mostFrames = 4410});
    ModelTwin twin;
    const Audio song = testAudio(2, 1000);
    Audio library = instance.render(song);
    Audio model = twin.render(song);
    const auto before = Clock::now();
    letPass(600ms); // far beyond what would be enough for short blocks
    append(library, instance.render(song));
    append(model, twin.render(song));
    if (Clock::now() - before >= threshold)
        GTEST_SKIP() << "the machine was too slow to keep a host's pace";
    EXPECT_TRUE(sameBits(library, model));
    EXPECT_TRUE(comesToRest(instance, threshold + 250ms));
}

TEST_F(Watch, resetsOnce) {
    LibraryInstance watched;
    LibraryInstance other;
    watched.start(shortBlocks());
    other.start(shortBlocks());
    play(watched);
    play(other);
    // The timer that finds the other one at rest, twice, has passed the watched one as well.
    ASSERT_TRUE(comesToRest(other, 250ms));
    ASSERT_TRUE(comesToRest(other, 250ms));

    // Three changes wait for three blocks; a reset would leave the last of them alone.
    ModelTwin twin;
    for (const double gain : {-20.0, 20.0, -10.0}) {
        watched.set("gain", gain);
        twin.set("gain", gain);
    }
    ASSERT_TRUE(comesToRest(other, 250ms));
    const Audio song = testAudio(2, 1000);
    const Audio once = twin.render(song, 64);
    EXPECT_TRUE(sameBits(watched.render(song, 64), once));
    twin.reset();
    EXPECT_FALSE(sameBits(twin.render(song, 64), once)); // so a second reset is heard
}

TEST_F(Watch, hasNothingToDoWhereNothingWasProcessed) {
    LibraryInstance untouched;
    LibraryInstance other;
    untouched.start(shortBlocks());
    other.start(shortBlocks());
    ModelTwin twin;
    for (const double gain : {-20.0, 20.0, -10.0}) {
        untouched.set("gain", gain);
        twin.set("gain", gain);
    }
    play(other);
    ASSERT_TRUE(comesToRest(other, 250ms));
    const Audio song = testAudio(2, 1000);
    EXPECT_TRUE(sameBits(untouched.render(song, 64), twin.render(song, 64)));
}

TEST_F(Watch, endsWithTheInstance) {
    LibraryInstance other;
    other.start(shortBlocks());
    for (int i = 0; i < 5; ++i) {
        LibraryInstance instance;
        instance.start(shortBlocks());
        play(instance);
    }
    play(other);
    EXPECT_TRUE(comesToRest(other, 250ms));
}
