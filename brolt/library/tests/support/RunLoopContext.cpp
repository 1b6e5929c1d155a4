// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/RunLoopContext.h"

#ifndef _WIN32

#    include <algorithm>

#    include <poll.h>

using Steinberg::kInvalidArgument;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;
using namespace Steinberg::Linux;

tresult PLUGIN_API RunLoopContext::registerEventHandler(IEventHandler* handler,
                                                        FileDescriptor descriptor) {
    if (handler == nullptr)
        return kInvalidArgument;
    if (refuses)
        return kResultFalse;
    events.push_back({handler, descriptor});
    return kResultOk;
}

tresult PLUGIN_API RunLoopContext::unregisterEventHandler(IEventHandler* handler) {
    const std::size_t removed =
        std::erase_if(events, [&](const Event& event) { return event.handler == handler; });
    return removed != 0 ? kResultOk : kInvalidArgument;
}

tresult PLUGIN_API RunLoopContext::registerTimer(ITimerHandler* handler,
                                                 TimerInterval milliseconds) {
    if (handler == nullptr || milliseconds == 0)
        return kInvalidArgument;
    if (refuses)
        return kResultFalse;
    const std::chrono::milliseconds period(milliseconds);
    ticks.push_back({handler, period, Clock::now() + period});
    return kResultOk;
}

tresult PLUGIN_API RunLoopContext::unregisterTimer(ITimerHandler* handler) {
    const std::size_t removed =
        std::erase_if(ticks, [&](const Tick& tick) { return tick.handler == handler; });
    return removed != 0 ? kResultOk : kInvalidArgument;
}

bool RunLoopContext::driveUntil(const std::function<bool()>& condition,
                                std::chrono::milliseconds limit) {
    const auto end = Clock::now() + limit;
    while (!condition()) {
        if (Clock::now() >= end)
            return false;
        turn();
    }
    return true;
}

void RunLoopContext::turn() {
    callReadable();
    callDue();
}

void RunLoopContext::callReadable() {
    constexpr int patienceMs = 5;
    std::vector<pollfd> watched;
    for (const Event& event : events)
        watched.push_back({event.descriptor, POLLIN, 0});
    poll(watched.data(), watched.size(), patienceMs);
    // Handlers may come and go while they are called.
    const std::vector<Event> present = events;
    for (std::size_t i = 0; i < present.size(); ++i) {
        if ((watched[i].revents & POLLIN) == 0)
            continue;
        ++calls;
        present[i].handler->onFDIsSet(present[i].descriptor);
    }
}

void RunLoopContext::callDue() {
    std::vector<Steinberg::IPtr<ITimerHandler>> due;
    for (Tick& tick : ticks) {
        if (tick.due > Clock::now())
            continue;
        tick.due += tick.period;
        due.push_back(tick.handler);
    }
    for (const auto& handler : due) {
        ++calls;
        handler->onTimer();
    }
}

#endif
