// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit for the length of a test, with this thread as its message thread.
#pragma once

#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

#include <chrono>
#include <functional>
#include <optional>
#include <thread>

// One turn of the toolkit's loop, which its own plug-in wrappers declare in the same way: the
// public one runs until the program ends. False when there was nothing to do.
namespace juce {
bool dispatchNextMessageOnSystemQueue(bool returnIfNoPendingMessages);
}

class ToolkitTest : public ::testing::Test {
protected:
    /// Lets messages and timers run until the condition holds; false when it does not within half a
    /// minute.
    static bool runLoopUntil(const std::function<bool()>& condition) {
        using Clock = std::chrono::steady_clock;
        const auto deadline = Clock::now() + std::chrono::seconds(30);
        while (!condition()) {
            if (Clock::now() > deadline)
                return false;
            if (!juce::dispatchNextMessageOnSystemQueue(true))
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return true;
    }

    /// Everything that was posted before this call is delivered.
    static bool runPendingMessages() {
        bool reached = false;
        juce::MessageManager::callAsync([&reached] { reached = true; });
        return runLoopUntil([&reached] { return reached; });
    }

    void shutDownToolkit() { toolkit.reset(); }

    void startToolkit() { toolkit.emplace(); }

private:
    std::optional<juce::ScopedJuceInitialiser_GUI> toolkit{std::in_place};
};
