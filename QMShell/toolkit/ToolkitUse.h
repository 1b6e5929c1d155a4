// SPDX-License-Identifier: GPL-3.0-or-later
// Who keeps the toolkit alive. The plug-ins of a process share one message loop and one window for
// tooltips: the first user starts them, the last one ends them, so that a host that has let go of
// every instance can unload the library with no thread, window or timer left behind.
#pragma once

#include "QMShell/toolkit/IHostRunLoop.h"

#include <functional>
#include <memory>

class ToolkitUse {
public:
    /// The host's run loop, null where it offers none, is lent to the toolkit for as long as this
    /// user lives (see MessageLoop). [message thread]
    explicit ToolkitUse(std::shared_ptr<IHostRunLoop> hostRunLoop = nullptr);
    /// [message thread]
    ~ToolkitUse();
    ToolkitUse(const ToolkitUse&) = delete;
    ToolkitUse& operator=(const ToolkitUse&) = delete;

    /// Runs a task as part of the message thread's work and waits for it. Nothing that the message
    /// thread may wait for must be held. [any thread but audio]
    static void run(const std::function<void()>& task);

    /// Whether tooltips come at once, or practically never. For every editor of the process.
    /// [message thread]
    static void setTooltipsAtOnce(bool on);

private:
    std::shared_ptr<IHostRunLoop> lent;
};
