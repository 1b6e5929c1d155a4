// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/HostRunLoop.h"

#ifndef _WIN32

#    include <algorithm>

using namespace Steinberg;

tresult PLUGIN_API HostRunLoop::registerEventHandler(Linux::IEventHandler* handler,
                                                     int descriptor) {
    if (handler == nullptr || descriptor < 0)
        return kInvalidArgument;
    watches.push_back({handler, descriptor});
    return kResultOk;
}

tresult PLUGIN_API HostRunLoop::unregisterEventHandler(Linux::IEventHandler* handler) {
    const auto count =
        std::erase_if(watches, [=](const Watch& watch) { return watch.handler == handler; });
    return count > 0 ? kResultOk : kResultFalse;
}

tresult PLUGIN_API HostRunLoop::registerTimer(Linux::ITimerHandler* handler, uint64 milliseconds) {
    constexpr uint64 aDay = 86'400'000;
    if (handler == nullptr || milliseconds == 0)
        return kInvalidArgument;
    const std::chrono::milliseconds period(std::min(milliseconds, aDay));
    timers.push_back({handler, period, Clock::now() + period});
    return kResultOk;
}

tresult PLUGIN_API HostRunLoop::unregisterTimer(Linux::ITimerHandler* handler) {
    const auto count =
        std::erase_if(timers, [=](const Timer& timer) { return timer.handler == handler; });
    return count > 0 ? kResultOk : kResultFalse;
}

void HostRunLoop::deliverPending() {
    constexpr int enough = 100; // a plug-in that answers a message with a message must not stop us
    for (int i = 0; i < enough && deliverReadable(); ++i) {
    }
    deliverDue();
}

void HostRunLoop::waitAndDeliver(std::chrono::milliseconds longest) {
    std::vector<pollfd> asked = descriptors();
    // Interrupted by a signal, it goes on early.
    poll(asked.data(), asked.size(), static_cast<int>(timeToNextTimer(longest).count()));
    deliverPending();
}

std::vector<pollfd> HostRunLoop::descriptors() const {
    std::vector<pollfd> asked;
    for (const Watch& watch : watches)
        asked.push_back({watch.descriptor, POLLIN, 0});
    return asked;
}

/// Rounded up: a millisecond's rest would be waited for in circles.
std::chrono::milliseconds HostRunLoop::timeToNextTimer(std::chrono::milliseconds most) const {
    constexpr std::chrono::milliseconds none(0);
    const Clock::time_point now = Clock::now();
    std::chrono::milliseconds shortest = most;
    for (const Timer& timer : timers)
        shortest =
            std::min(shortest, std::chrono::ceil<std::chrono::milliseconds>(timer.due - now));
    return std::max(shortest, none);
}

bool HostRunLoop::deliverReadable() {
    std::vector<pollfd> asked = descriptors();
    if (asked.empty() || poll(asked.data(), asked.size(), 0) <= 0)
        return false;

    // Handlers come and go while they are called.
    const std::vector<Watch> before = watches;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const bool stillThere =
            std::any_of(watches.begin(), watches.end(), [&](const Watch& watch) {
                return watch.handler == before[i].handler &&
                       watch.descriptor == before[i].descriptor;
            });
        if (asked[i].revents != 0 && stillThere)
            before[i].handler->onFDIsSet(before[i].descriptor);
    }
    return true;
}

void HostRunLoop::deliverDue() {
    const Clock::time_point now = Clock::now();
    std::vector<IPtr<Linux::ITimerHandler>> due;
    for (Timer& timer : timers) {
        if (timer.due <= now) {
            due.push_back(timer.handler);
            timer.due = now + timer.period;
        }
    }
    for (const auto& handler : due) {
        const bool stillThere = std::any_of(timers.begin(), timers.end(), [&](const Timer& timer) {
            return timer.handler == handler;
        });
        if (stillThere)
            handler->onTimer();
    }
}

#endif
