// SPDX-License-Identifier: GPL-3.0-or-later
//
// Watches a piece of code for what the audio thread must never do: allocate, free, take or signal a
// lock, wait, write to a stream, call the system.
//
// A program that is linked with this folder has its own versions of the C library's functions for
// these (Interposed*.cpp). They do what the originals do, and while a guard is alive on the calling
// thread they also count. Code that is compiled into the C library itself does not pass here: for a
// proof that no system call is left, use SystemCallTrap.
//
// For native builds without sanitizers, which replace the same functions.

#pragma once

/// What a guard saw.
struct AudioThreadReport {
    int violations = 0;
    const char* first = ""; ///< name of the first function called, "" if none was
};

/// Guards may be nested; an inner one's violations count for the outer ones too. Only the thread
/// that made the guard is watched.
class AudioThreadGuard {
public:
    AudioThreadGuard() noexcept;
    ~AudioThreadGuard();

    AudioThreadGuard(const AudioThreadGuard&) = delete;
    AudioThreadGuard& operator=(const AudioThreadGuard&) = delete;

    [[nodiscard]] AudioThreadReport report() const noexcept { return seen; }

    /// For the interposed functions: the calling thread entered `function`.
    static void note(const char* function) noexcept;

private:
    friend class AudioThreadGuardPause;

    AudioThreadGuard* outer;
    AudioThreadReport seen;
};

/// Stops the watch on this thread while an interposed function looks for its original.
class AudioThreadGuardPause {
public:
    AudioThreadGuardPause() noexcept;
    ~AudioThreadGuardPause();

    AudioThreadGuardPause(const AudioThreadGuardPause&) = delete;
    AudioThreadGuardPause& operator=(const AudioThreadGuardPause&) = delete;

private:
    AudioThreadGuard* paused;
};

/// Runs `body` under a guard. Test assertions allocate, so they belong behind this call and not
/// into the body.
template <typename Body>
AudioThreadReport watchAudioThread(Body&& body) {
    const AudioThreadGuard guard;
    body();
    return guard.report();
}
