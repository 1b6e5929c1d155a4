// SPDX-License-Identifier: GPL-3.0-or-later
// A Linux host that lends its plug-ins its event loop, and turns it only when the test says so.
#pragma once

#ifndef _WIN32

#    include "brolt/library/tests/support/HostContext.h"

#    include <pluginterfaces/gui/iplugview.h>

#    include <chrono>
#    include <functional>
#    include <vector>

class RunLoopContext : public HostContextWith<Steinberg::Linux::IRunLoop> {
public:
    /// Hosts may say no.
    bool refuses = false;

    [[nodiscard]] std::size_t descriptors() const { return events.size(); }

    [[nodiscard]] std::size_t timers() const { return ticks.size(); }

    /// How often a handler was called.
    int calls = 0;

    /// Turns the loop until the condition holds. False at the limit.
    [[nodiscard]] bool driveUntil(const std::function<bool()>& condition,
                                  std::chrono::milliseconds limit);

    Steinberg::tresult PLUGIN_API
    registerEventHandler(Steinberg::Linux::IEventHandler* handler,
                         Steinberg::Linux::FileDescriptor descriptor) override;
    Steinberg::tresult PLUGIN_API
    unregisterEventHandler(Steinberg::Linux::IEventHandler* handler) override;
    Steinberg::tresult PLUGIN_API
    registerTimer(Steinberg::Linux::ITimerHandler* handler,
                  Steinberg::Linux::TimerInterval milliseconds) override;
    Steinberg::tresult PLUGIN_API
    unregisterTimer(Steinberg::Linux::ITimerHandler* handler) override;

private:
    using Clock = std::chrono::steady_clock;

    struct Event {
        Steinberg::IPtr<Steinberg::Linux::IEventHandler> handler;
        int descriptor;
    };

    struct Tick {
        Steinberg::IPtr<Steinberg::Linux::ITimerHandler> handler;
        std::chrono::milliseconds period;
        Clock::time_point due;
    };

    void turn();
    void callReadable();
    void callDue();

    std::vector<Event> events;
    std::vector<Tick> ticks;
};

#endif
