// SPDX-License-Identifier: GPL-3.0-or-later
// Hosts load libraries to look at them, use them and unload them, again and again: nothing may be
// left behind in their process.
#include "brolt/library/tests/support/HostWait.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ProcessResources.h"
#include "brolt/library/tests/support/StateFixtures.h"

#include <optional>

using Steinberg::kResultOk;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int cycles = 25; // the sanitizer takes seconds to load a library
#else
constexpr int cycles = 100;
#endif
/// Until then caches fill: the loader's, the allocator's, the system's.
constexpr int firstCycles = 20;

/// A thread that has ended may still be listed for a moment.
void expectThreads(std::size_t expected) {
    EXPECT_TRUE(waitUntil([&] { return ProcessResources::now().threads <= expected; },
                          std::chrono::seconds(10)))
        << ProcessResources::now().threads << " threads instead of " << expected;
}

/// Everything a host does with a plug-in, in short.
void useLibrary() {
    const LoadedLibrary library;
    EXPECT_EQ(library.factory().classInfos().size(), 2U);
    LibraryInstance first(LibraryInstance::Begin::initialised, library);
    LibraryInstance second(LibraryInstance::Begin::initialised, library);
    first.start({.channels = 1});
    second.start({.channels = 2});
    (void)first.render(testAudio(1, 1000));
    (void)second.render(testAudio(2, 1000));
    second.set("gain", 3.0);
    EXPECT_EQ(first.restore(savedState()), kResultOk); // writes to the log, too
    EXPECT_EQ(second.restore(first.state()), kResultOk);
    EXPECT_EQ(first.restore(Bytes(20)), Steinberg::kResultFalse);
}

class Unload : public ::testing::Test {
protected:
    void SetUp() override {
        LoadedLibrary::unloadShared();
        ASSERT_FALSE(LoadedLibrary::isInProcess());
    }
};

} // namespace

TEST_F(Unload, takesTheLibraryOutOfTheProcess) {
    {
        const LoadedLibrary library;
        EXPECT_TRUE(LoadedLibrary::isInProcess());
    }
    EXPECT_FALSE(LoadedLibrary::isInProcess());
    useLibrary();
    EXPECT_FALSE(LoadedLibrary::isInProcess());
}

TEST_F(Unload, ofALibraryThatWasOnlyLookedAtLeavesNoThread) {
    const std::size_t before = ProcessResources::now().threads;
    {
        const LoadedLibrary library;
        EXPECT_EQ(library.factory().classInfos().size(), 2U);
        const LibraryInstance instance(LibraryInstance::Begin::created, library);
        EXPECT_EQ(ProcessResources::now().threads, before); // nor does looking at it make one
    }
    expectThreads(before);
}

TEST_F(Unload, leavesNothingBehindInAHundredCycles) {
    const std::size_t threads = ProcessResources::now().threads;
    std::optional<ProcessResources> settled;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        useLibrary();
        ASSERT_FALSE(LoadedLibrary::isInProcess()) << cycle;
        if (cycle == firstCycles - 1)
            settled = ProcessResources::now();
    }
    expectThreads(threads);
    const ProcessResources end = ProcessResources::now();
    EXPECT_LE(end.handles, settled->handles);
    if (end.allocated) {
        // The C library counts as in use what its threads keep in reserve, which grows a little
        // where there is a window system. An instance that stays is several times as much as this.
        EXPECT_LE(*end.allocated, *settled->allocated + 1000U * (cycles - firstCycles));
    }
}

TEST_F(Unload, ofTheLastInstanceEndsTheThreadsAndTheNextOneBeginsAnew) {
    const LoadedLibrary library;
    const std::size_t before = ProcessResources::now().threads;
    for (int i = 0; i < 10; ++i) {
        LibraryInstance instance(LibraryInstance::Begin::initialised, library);
        instance.start();
        (void)instance.render(testAudio(2, 1000));
    }
    expectThreads(before);
}
