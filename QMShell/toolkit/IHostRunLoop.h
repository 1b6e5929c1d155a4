// SPDX-License-Identifier: GPL-3.0-or-later
// The event loop of a host on Linux, as the toolkit needs it: somebody who waits for file
// descriptors on the thread that the host's windows live on. Each adapter wraps what its interface
// offers.
#pragma once

#include <functional>

class IHostRunLoop {
public:
    virtual ~IHostRunLoop() = default;

    /// Calls onReadable on the loop's thread whenever the descriptor has something to read. False
    /// when the host refuses. [message thread]
    virtual bool watch(int descriptor, std::function<void()> onReadable) = 0;
    /// [message thread]
    virtual void unwatch(int descriptor) = 0;
};
