// SPDX-License-Identifier: GPL-3.0-or-later
// Instances that come and go: each first one starts the library's messages, each last one ends
// them, and a thread that is about to end must not be left behind or run into.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <atomic>
#include <thread>

namespace {

/// One instance from its beginning to its end, in use in between.
void liveOnce() {
    LibraryInstance instance;
    instance.start();
    (void)instance.render(testAudio(2, 64), 64);
    instance.set("gain", 3.0);
}

} // namespace

TEST(InstanceLife, beginsAndEndsAgainAndAgain) {
    for (int i = 0; i < 100; ++i)
        liveOnce();
}

TEST(InstanceLife, isMadeAndForgottenWithoutAnyUse) {
    for (int i = 0; i < 100; ++i)
        const LibraryInstance instance;
}

TEST(InstanceLife, doesNotDisturbAnotherThatIsProcessed) {
    LibraryInstance processed;
    processed.start();
    const Audio song = testAudio(2, 100000);
    ModelTwin twin;
    const Audio expected = twin.render(song, 64);
    std::atomic<bool> done{false};
    Audio rendered;
    std::thread audio([&] {
        rendered = processed.render(song, 64);
        done = true;
    });
    while (!done)
        liveOnce();
    audio.join();
    EXPECT_TRUE(sameBits(rendered, expected));
}

// On Windows everything begins and ends on the one thread that hands out messages.
#ifndef _WIN32

TEST(InstanceLife, goesOnOnSeveralThreadsAtOnce) {
    LoadedLibrary::shared(); // loaded before anybody runs
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread) {
        threads.emplace_back([] {
            for (int i = 0; i < 50; ++i)
                liveOnce();
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

#endif
