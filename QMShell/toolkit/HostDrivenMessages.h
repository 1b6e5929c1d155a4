// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on Linux in a host that offers its run loop: the toolkit's file descriptors are watched
// by the host, and what becomes readable is delivered on the host's window thread.
//
// How it crosses the threads. The toolkit knows one message thread by its number. Here that is
// whoever holds the turn: the host's loop while it delivers, or a control thread of the host that
// runs a task meanwhile. So a task never waits for a loop that the host has put aside.
#pragma once

#ifndef _WIN32

#    include "QMShell/toolkit/MessageLoop.h"

#    include <juce_events/juce_events.h>
#    include <juce_events/native/juce_linux_EventLoopInternal.h>

#    include <mutex>
#    include <set>

class HostDrivenMessages final : public MessageLoop,
                                 private juce::LinuxEventLoopInternal::Listener {
public:
    /// [message thread]
    explicit HostDrivenMessages(std::unique_ptr<IHostRunLoop> hostRunLoop);
    ~HostDrivenMessages() override;
    HostDrivenMessages(const HostDrivenMessages&) = delete;
    HostDrivenMessages& operator=(const HostDrivenMessages&) = delete;

    /// False when the host refused to watch; nothing is delivered then. [message thread]
    [[nodiscard]] bool isDriven() const { return !watched.empty() && !refused; }

    void run(const std::function<void()>& task) override;

private:
    /// The toolkit opened or closed something, the connection to the window system, say.
    void fdCallbacksChanged() override;
    void deliver(int descriptor);

    std::recursive_mutex turn;
    std::unique_ptr<IHostRunLoop> runLoop;
    juce::ScopedJuceInitialiser_GUI toolkit;
    std::set<int> watched;
    bool refused = false;
};

#endif
