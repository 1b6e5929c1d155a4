// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a host owes its plug-ins' windows and timers, which are run by the host's thread: on Windows
// the delivery of the thread's messages, on Linux a run loop.

#pragma once

#ifndef _WIN32
#    include "tools/brolt-host/vst3/HostRunLoop.h"
#endif

#include <chrono>

class HostMessages {
public:
    /// Delivers what is pending and does not wait for more. [message thread]
    void deliverPending();

    /// Sleeps until there is something to deliver or the time is over, and delivers it. What keeps
    /// a window alive. [message thread]
    void waitAndDeliver(std::chrono::milliseconds longest);

#ifndef _WIN32
    [[nodiscard]] HostRunLoop& runLoop() {
        return loop;
    }

private:
    HostRunLoop loop;
#endif
};
