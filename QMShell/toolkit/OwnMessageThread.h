// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on Linux in a host that offers no run loop: a thread of our own delivers them. The
// toolkit begins and ends on that thread, so that everything of it that is bound to a thread is
// bound to this one.
#pragma once

#ifndef _WIN32

#    include "QMShell/toolkit/MessageLoop.h"

#    include <atomic>
#    include <thread>

class OwnMessageThread final : public MessageLoop {
public:
    /// The thread is delivering when this returns. [message thread]
    OwnMessageThread();
    /// Waits for the thread to end. [any thread but audio]
    ~OwnMessageThread() override;
    OwnMessageThread(const OwnMessageThread&) = delete;
    OwnMessageThread& operator=(const OwnMessageThread&) = delete;

    void run(const std::function<void()>& task) override;

    void abandon() override;

private:
    void deliver();
    void endThread();

    std::atomic<bool> isDelivering{false};
    std::atomic<bool> shallEnd{false};
    std::atomic<bool> isLeftAlone{false};
    bool isAbandoned = false; ///< set before shallEnd
    std::thread thread;
};

#endif
