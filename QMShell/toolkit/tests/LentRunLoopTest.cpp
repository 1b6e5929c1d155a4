// SPDX-License-Identifier: GPL-3.0-or-later
// Which thread delivers the toolkit's messages on Linux, while hosts lend their run loops and take
// them back.

#ifndef _WIN32

#    include "QMShell/toolkit/IHostRunLoop.h"
#    include "QMShell/toolkit/RepeatingCheck.h"
#    include "QMShell/toolkit/ToolkitUse.h"

#    include <gtest/gtest.h>
#    include <juce_events/juce_events.h>

#    include <poll.h>

#    include <atomic>
#    include <chrono>
#    include <map>
#    include <thread>

namespace {

/// A host's loop that runs when the test lets it.
class TurnedLoop final : public IHostRunLoop {
public:
    bool watch(int descriptor, std::function<void()> onReadable) override {
        if (refuses)
            return false;
        handlers[descriptor] = std::move(onReadable);
        return true;
    }

    void unwatch(int descriptor) override { handlers.erase(descriptor); }

    /// Delivers until the condition holds; false when it does not within half a minute.
    bool turnUntil(const std::function<bool()>& condition) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (!condition()) {
            if (std::chrono::steady_clock::now() > deadline)
                return false;
            std::vector<pollfd> list;
            for (const auto& [descriptor, handler] : handlers)
                list.push_back({descriptor, POLLIN, 0});
            poll(list.data(), list.size(), 5);
            for (const pollfd& one : list) {
                const auto found = handlers.find(one.fd);
                if ((one.revents & POLLIN) == 0 || found == handlers.end())
                    continue;
                const std::function<void()> handler = found->second;
                handler();
            }
        }
        return true;
    }

    bool refuses = false;
    std::map<int, std::function<void()>> handlers;
};

std::thread::id threadOfMessages() {
    std::thread::id id;
    ToolkitUse::run([&id] { id = std::this_thread::get_id(); });
    return id;
}

/// Notes the thread of each call; calls come every 5 ms.
class Ticking {
public:
    Ticking()
        : check(5, [this] {
            thread = std::this_thread::get_id();
            ++count;
        }) {}

    std::atomic<std::thread::id> thread;
    std::atomic<int> count{0};

private:
    RepeatingCheck check;
};

bool waitUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

const std::thread::id noThread;

} // namespace

TEST(LentRunLoop, WithoutOneAThreadOfOursDelivers) {
    const ToolkitUse toolkit;
    EXPECT_NE(threadOfMessages(), std::this_thread::get_id());
    const Ticking ticking;
    EXPECT_TRUE(waitUntil([&] { return ticking.count > 2; }));
    EXPECT_EQ(ticking.thread.load(), threadOfMessages());
}

TEST(LentRunLoop, WhileItIsLentItDeliversAndOurThreadDoesBeforeAndAfter) {
    const ToolkitUse toolkit;
    const Ticking ticking;
    ASSERT_TRUE(waitUntil([&] { return ticking.count > 0; }));
    const auto loop = std::make_shared<TurnedLoop>();
    {
        const ToolkitUse lending(loop);
        EXPECT_FALSE(loop->handlers.empty());
        EXPECT_EQ(threadOfMessages(), std::this_thread::get_id());
        const int before = ticking.count;
        EXPECT_TRUE(loop->turnUntil([&] { return ticking.count > before + 2; }));
        EXPECT_EQ(ticking.thread.load(), std::this_thread::get_id());
    }
    EXPECT_TRUE(loop->handlers.empty());
    const int before = ticking.count;
    EXPECT_TRUE(waitUntil([&] { return ticking.count > before + 2; }));
    EXPECT_NE(ticking.thread.load(), std::this_thread::get_id());
}

TEST(LentRunLoop, TheNextTakesOverWhenTheFirstIsTakenBack) {
    const auto first = std::make_shared<TurnedLoop>();
    const auto second = std::make_shared<TurnedLoop>();
    auto firstUse = std::make_unique<ToolkitUse>(first);
    const ToolkitUse secondUse(second);
    EXPECT_FALSE(first->handlers.empty());
    EXPECT_TRUE(second->handlers.empty());
    firstUse.reset();
    EXPECT_TRUE(first->handlers.empty());
    EXPECT_FALSE(second->handlers.empty());
    const Ticking ticking;
    EXPECT_TRUE(second->turnUntil([&] { return ticking.count > 2; }));
}

TEST(LentRunLoop, OneThatRefusesIsPassedOver) {
    const auto refusing = std::make_shared<TurnedLoop>();
    refusing->refuses = true;
    const ToolkitUse first(refusing);
    EXPECT_NE(threadOfMessages(), std::this_thread::get_id());
    const auto willing = std::make_shared<TurnedLoop>();
    const ToolkitUse second(willing);
    EXPECT_EQ(threadOfMessages(), std::this_thread::get_id());
    EXPECT_FALSE(willing->handlers.empty());
}

TEST(LentRunLoop, TakenBackInTheMidstOfADeliveryItEndsWithThatDelivery) {
    const ToolkitUse toolkit;
    const auto loop = std::make_shared<TurnedLoop>();
    auto lending = std::make_unique<ToolkitUse>(loop);
    bool isTakenBack = false;
    std::thread::id during;
    juce::MessageManager::callAsync([&] {
        lending.reset();
        // Nobody else delivers yet: this is still the message thread.
        during = threadOfMessages();
        isTakenBack = true;
    });
    EXPECT_TRUE(loop->turnUntil([&] { return isTakenBack; }));
    EXPECT_EQ(during, std::this_thread::get_id());
    EXPECT_TRUE(loop->handlers.empty());
    const Ticking ticking;
    EXPECT_TRUE(waitUntil([&] { return ticking.count > 2; }));
    EXPECT_NE(ticking.thread.load(), std::this_thread::get_id());
}

TEST(LentRunLoop, TasksOfOtherThreadsRunWhileTheHostHasPutItsLoopAside) {
    const auto loop = std::make_shared<TurnedLoop>();
    const ToolkitUse toolkit(loop);
    std::thread::id where;
    std::thread control([&] { where = threadOfMessages(); });
    const std::thread::id controlId = control.get_id();
    control.join();
    EXPECT_EQ(where, controlId);
}

TEST(LentRunLoop, AThousandTimesLentAndTakenBackLeaveNoThreadAndNoMessageBehind) {
    const ToolkitUse toolkit;
    const auto loop = std::make_shared<TurnedLoop>();
    int delivered = 0;
    for (int i = 0; i < 1000; ++i) {
        const ToolkitUse lending(loop);
        juce::MessageManager::callAsync([&delivered] { ++delivered; });
        if (i % 2 == 0) {
            ASSERT_TRUE(loop->turnUntil([&] { return delivered == i + 1; })) << i;
        } else {
            ToolkitUse::run([] {});
        }
        if (i % 2 == 1) {
            ASSERT_TRUE(loop->turnUntil([&] { return delivered == i + 1; })) << i;
        }
    }
    EXPECT_EQ(delivered, 1000);
    EXPECT_TRUE(loop->handlers.empty());
}

#endif
