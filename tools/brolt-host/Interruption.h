// SPDX-License-Identifier: GPL-3.0-or-later
//
// Ctrl-C and polite termination. The signal only leaves a note; the render loop looks for it
// between two chunks and unwinds, so that unfinished files are removed by those who own them.

#pragma once

/// Thrown through the render loop; nothing is wrong with the input.
struct Interrupted {
    int signal;
};

/// From now on SIGINT and SIGTERM leave a note instead of ending the program. Signals that were
/// ignored when the program started stay ignored. A file that would grow past the system's limit
/// for it gives a write error instead of a signal. [message thread]
void watchForInterruption();

/// Throws Interrupted once a signal has come. [message thread]
void throwIfInterrupted();
