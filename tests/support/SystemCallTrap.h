// SPDX-License-Identifier: GPL-3.0-or-later
//
// Proves that a piece of code makes no system call at all, however it would make it.
//
// The code runs in a child process under a kernel filter that lets nothing through but the end of
// the process. The first system call stops the child and is reported by its number.

#pragma once

#include <functional>

struct SystemCallReport {
    bool available = false; ///< false where the kernel does not let us install a filter
    bool finished = false;  ///< the body came to its end
    long systemCall = -1;   ///< number of the system call that stopped it, -1 if none did
    int signal = 0;         ///< the signal that ended the child otherwise, 0 if none did
};

/// Runs `body` in a child process. Nothing it changes is seen here. Warm up what the body may do on
/// its first call only (lazy binding, for one) before.
SystemCallReport runWithoutSystemCalls(const std::function<void()>& body);
