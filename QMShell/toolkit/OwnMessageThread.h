// SPDX-License-Identifier: GPL-3.0-or-later
// A thread of our own that delivers the toolkit's messages on Linux while no host lends its loop.
// The toolkit is there before it and after it.
#pragma once

#ifndef _WIN32

#    include <atomic>
#    include <functional>
#    include <thread>

class OwnMessageThread {
public:
    /// The thread is delivering when this returns. [any thread but audio]
    OwnMessageThread();
    /// Waits for the thread to end. [any thread but audio and this]
    ~OwnMessageThread();
    OwnMessageThread(const OwnMessageThread&) = delete;
    OwnMessageThread& operator=(const OwnMessageThread&) = delete;

    /// [any thread]
    static bool isThisThread();

    /// Runs a task on the thread and waits for it. [any thread but audio]
    void run(const std::function<void()>& task);

    /// Ends the thread where the process ends. [any thread but audio]
    void abandon();

private:
    void deliver();
    void endThread();

    std::atomic<bool> isDelivering{false};
    std::atomic<bool> shallEnd{false};
    std::atomic<bool> isLeftAlone{false};
    std::thread thread;
};

#endif
