// SPDX-License-Identifier: GPL-3.0-or-later
// Linux hosts that lend their event loop: the library's messages come on the host's thread and on
// no other, and the loop gets back what it lent.
#ifndef _WIN32

#    include "brolt/library/tests/support/RunLoopContext.h"

#    include "brolt/library/tests/support/HostWait.h"
#    include "brolt/library/tests/support/LibraryInstance.h"
#    include "brolt/library/tests/support/ModelTwin.h"

#    include <thread>

using namespace std::chrono_literals;
using Steinberg::kResultOk;

namespace {

using Begin = LibraryInstance::Begin;

class RunLoop : public ::testing::Test {
protected:
    RunLoopContext host;
    const Audio probe = testAudio(2, 256, 77);
    const Audio fromRest = ModelTwin().render(probe);

    std::unique_ptr<LibraryInstance> makeInstance() {
        auto instance = std::make_unique<LibraryInstance>(Begin::initialised,
                                                          LoadedLibrary::shared(), host.unknown());
        instance->start({.mostFrames = 64}); // a tenth of a second without a block is the end
        return instance;
    }

    void letAllGo(std::unique_ptr<LibraryInstance>& instance) {
        instance.reset();
        EXPECT_EQ(host.descriptors(), 0U);
        EXPECT_EQ(host.timers(), 0U);
        EXPECT_EQ(host.references(), 0U);
    }

    /// The loop turns for a while, then the instance is looked at, and so on; see WatchTest.cpp.
    ::testing::AssertionResult comesToRestWhileDriven(LibraryInstance& instance) {
        for (auto silence = 250ms; silence < 20s; silence *= 2) {
            (void)host.driveUntil([] { return false; }, silence);
            if (sameBits(instance.render(probe, 256), fromRest))
                return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "it was never reset";
    }
};

} // namespace

TEST_F(RunLoop, isAskedToWatchAndRelievedAtTheEnd) {
    auto instance = makeInstance();
    EXPECT_GT(host.descriptors() + host.timers(), 0U);
    letAllGo(instance);
}

TEST_F(RunLoop, bringsTheMessagesThatTheInstanceNeeds) {
    auto instance = makeInstance();
    (void)instance->render(testAudio(2, 1000), 64);
    EXPECT_TRUE(comesToRestWhileDriven(*instance));
    EXPECT_GT(host.calls, 0);
    letAllGo(instance);
}

TEST_F(RunLoop, isTakenFromTheContextThatTheLibraryAsAWholeWasGiven) {
    const Steinberg::FUnknownPtr<Steinberg::IPluginFactory3> factory(
        &LoadedLibrary::shared().rawFactory());
    ASSERT_EQ(factory->setHostContext(host.unknown()), kResultOk);
    {
        LibraryInstance instance; // with a context that offers none
        EXPECT_GT(host.descriptors() + host.timers(), 0U);
    }
    EXPECT_EQ(host.descriptors(), 0U);
    EXPECT_EQ(factory->setHostContext(nullptr), kResultOk);
    EXPECT_EQ(host.references(), 0U);
}

TEST_F(RunLoop, isTheOnlyPlaceWhereMessagesComeFrom) {
    auto instance = makeInstance();
    ModelTwin twin;
    const Audio song = testAudio(2, 1000);
    Audio library = instance->render(song, 64);
    Audio model = twin.render(song, 64);
    std::this_thread::sleep_for(400ms); // nobody turns the loop: nobody can reset
    append(library, instance->render(song, 64));
    append(model, twin.render(song, 64));
    EXPECT_TRUE(sameBits(library, model));
    letAllGo(instance);
}

TEST_F(RunLoop, servesAllInstancesUntilTheLastIsGone) {
    auto first = makeInstance();
    auto second = makeInstance();
    first.reset();
    EXPECT_GT(host.descriptors() + host.timers(), 0U);
    (void)second->render(testAudio(2, 1000), 64);
    EXPECT_TRUE(comesToRestWhileDriven(*second));
    letAllGo(second);
}

TEST_F(RunLoop, isRelievedAtTermination) {
    auto instance = makeInstance();
    instance->stop();
    EXPECT_EQ(instance->component().terminate(), kResultOk);
    EXPECT_EQ(host.descriptors(), 0U);
    EXPECT_EQ(host.timers(), 0U);
    EXPECT_EQ(instance->component().initialize(host.unknown()), kResultOk);
    EXPECT_GT(host.descriptors() + host.timers(), 0U);
    letAllGo(instance);
}

TEST_F(RunLoop, thatStandsStillKeepsNoCallWaiting) {
    auto instance = makeInstance();
    auto other = makeInstance();
    instance->set("gain", 3.0);
    EXPECT_EQ(instance->restore(other->state()), kResultOk);
    instance->stop();
    instance->start({.channels = 1, .mostFrames = 64});
    (void)instance->render(testAudio(1, 1000), 64);
    other.reset();
    letAllGo(instance);
}

TEST_F(RunLoop, isServedFromAnotherThreadToo) {
    auto instance = makeInstance();
    (void)instance->render(testAudio(2, 1000), 64);
    ::testing::AssertionResult result = ::testing::AssertionSuccess();
    std::thread window([&] { result = comesToRestWhileDriven(*instance); });
    window.join();
    EXPECT_TRUE(result);
    letAllGo(instance);
}

TEST_F(RunLoop, thatRefusesIsDoneWithout) {
    host.refuses = true;
    auto instance = makeInstance();
    EXPECT_EQ(host.descriptors(), 0U);
    EXPECT_EQ(host.timers(), 0U);
    (void)instance->render(testAudio(2, 1000), 64);
    EXPECT_TRUE(comesToRestWhileDriven(*instance)); // by messages of the library's own
    EXPECT_EQ(host.calls, 0);
    letAllGo(instance);
}

#endif
