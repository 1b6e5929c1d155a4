// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on Linux, where the host owns the event loop: as long as somebody lends us one, it
// watches the toolkit's file descriptors, and what becomes readable is delivered on its thread, the
// one that the host's windows live on. Some hosts lend theirs to the library or an instance, most
// only to an editor's frame; in between a thread of our own delivers.
//
// How it crosses the threads. The toolkit knows one message thread by its number. With a host's
// loop that is whoever has the turn: the loop while it delivers, or a control thread of the host
// that runs a task meanwhile. So a task never waits for a loop that the host has put aside. From
// one loop to the next it goes only when nobody has the turn: a loop that is taken back in the
// midst of one of its own deliveries, by a host that closes an editor from there, ends with it.
#pragma once

#ifndef _WIN32

#    include "QMShell/toolkit/MessageLoop.h"

#    include <juce_events/juce_events.h>
#    include <juce_events/native/juce_linux_EventLoopInternal.h>

#    include <atomic>
#    include <mutex>
#    include <set>
#    include <shared_mutex>
#    include <vector>

class OwnMessageThread;

class LinuxMessages final : public MessageLoop,
                            public std::enable_shared_from_this<LinuxMessages>,
                            private juce::LinuxEventLoopInternal::Listener {
public:
    /// The first loop may be null. [message thread]
    static std::shared_ptr<LinuxMessages> make(std::shared_ptr<IHostRunLoop> first);
    ~LinuxMessages() override;
    LinuxMessages(const LinuxMessages&) = delete;
    LinuxMessages& operator=(const LinuxMessages&) = delete;

    void run(const std::function<void()>& task) override;
    void lend(std::shared_ptr<IHostRunLoop> hostRunLoop) override;
    void takeBack(const IHostRunLoop* hostRunLoop) override;
    void abandon() override;

private:
    class Turn;

    LinuxMessages();

    /// Puts the first lent loop that does not refuse, or our own thread, into place. With the mode
    /// held by this thread alone.
    void choose();
    bool drive(const std::shared_ptr<IHostRunLoop>& loop);
    void stopDriving();
    /// Unless this thread has the turn: it does so when it gives it up.
    void chooseIfDue();

    /// The toolkit opened or closed something, the connection to the window system, say.
    void fdCallbacksChanged() override;
    bool watchWhatThereIs();
    void deliver();

    std::atomic<bool> choiceIsDue{false};
    std::shared_mutex mode; ///< held shared while a task runs, alone while loops change
    std::recursive_mutex turn;
    juce::ScopedJuceInitialiser_GUI toolkit;
    std::vector<std::shared_ptr<IHostRunLoop>> lent;
    std::shared_ptr<IHostRunLoop> driver; ///< null while our own thread delivers
    std::set<int> watched;
    std::unique_ptr<OwnMessageThread> ownThread;
};

#endif
