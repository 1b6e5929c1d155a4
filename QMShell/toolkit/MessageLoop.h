// SPDX-License-Identifier: GPL-3.0-or-later
// Where the toolkit's messages, and with them its timers, are delivered: what the toolkit calls the
// message thread. Its life is the life of the toolkit in this process.
//
//   Windows   the thread that made the loop; the host's message pump reaches the toolkit's hidden
//             window
//   Linux     the host's own window thread where the host lends its loop, else a thread of ours
//             (see LinuxMessages)
#pragma once

#include "QMShell/toolkit/IHostRunLoop.h"

#include <functional>
#include <memory>

class MessageLoop {
public:
    virtual ~MessageLoop() = default;

    /// Runs a task as part of the message thread's work and waits for it. Nothing that the message
    /// thread may wait for must be held. [any thread but audio]
    virtual void run(const std::function<void()>& task) = 0;

    /// The host lends a loop of its window thread. The first one lent serves until it is taken
    /// back, then the next. [the host's window thread]
    virtual void lend(std::shared_ptr<IHostRunLoop>) {}

    /// Nothing of the host's is called through the loop any more when this returns.
    /// [the host's window thread]
    virtual void takeBack(const IHostRunLoop*) {}

    /// The process ends while somebody still uses the toolkit. Stops what would run on among
    /// objects that are gone and leaves the toolkit as it is. Nothing of the host's is called.
    /// [any thread but audio]
    virtual void abandon() {}
};

/// The loop this platform wants; the run loop may be null. [message thread]
std::shared_ptr<MessageLoop> makeMessageLoop(std::shared_ptr<IHostRunLoop> hostRunLoop);
