// SPDX-License-Identifier: GPL-3.0-or-later
//
// The event loop that a VST3 host on Linux lends to its plug-ins: they name file descriptors and
// intervals, and are called when there is something to read or time has passed. Nothing happens
// but inside the two deliveries, so that a plug-in's timers run where this host wants them.

#pragma once

#ifndef _WIN32

#    include <pluginterfaces/base/funknownimpl.h>
#    include <pluginterfaces/gui/iplugview.h>

#    include <chrono>
#    include <vector>

#    include <poll.h>

// All of it, interface and delivery, is for one thread: the host's. [message thread]
class HostRunLoop : public Steinberg::U::ImplementsNonDestroyable<
                        Steinberg::U::Directly<Steinberg::Linux::IRunLoop>> {
public:
    Steinberg::tresult PLUGIN_API registerEventHandler(Steinberg::Linux::IEventHandler* handler,
                                                       int descriptor) override;
    Steinberg::tresult PLUGIN_API
    unregisterEventHandler(Steinberg::Linux::IEventHandler* handler) override;
    Steinberg::tresult PLUGIN_API registerTimer(Steinberg::Linux::ITimerHandler* handler,
                                                Steinberg::uint64 milliseconds) override;
    Steinberg::tresult PLUGIN_API
    unregisterTimer(Steinberg::Linux::ITimerHandler* handler) override;

    /// Calls the handlers of whatever is readable and due, until nothing is or it has been enough
    /// for once. Does not wait.
    void deliverPending();

    /// Sleeps until something is readable, a timer is due, a signal comes or the time is over, and
    /// delivers what there is.
    void waitAndDeliver(std::chrono::milliseconds longest);

private:
    using Clock = std::chrono::steady_clock;

    struct Watch {
        Steinberg::IPtr<Steinberg::Linux::IEventHandler> handler;
        int descriptor;
    };

    struct Timer {
        Steinberg::IPtr<Steinberg::Linux::ITimerHandler> handler;
        Clock::duration period;
        Clock::time_point due;
    };

    [[nodiscard]] std::vector<pollfd> descriptors() const;
    [[nodiscard]] std::chrono::milliseconds timeToNextTimer(std::chrono::milliseconds most) const;
    bool deliverReadable();
    void deliverDue();

    std::vector<Watch> watches;
    std::vector<Timer> timers;
};

#endif
