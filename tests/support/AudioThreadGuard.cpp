// SPDX-License-Identifier: GPL-3.0-or-later
//
// The guards of each thread. The thread's variable needs no initialisation at run time and lies in
// the program's own thread block, so that looking at it from within malloc allocates nothing.

#include "tests/support/AudioThreadGuard.h"

namespace {

constinit thread_local AudioThreadGuard* innermost = nullptr;

} // namespace

AudioThreadGuard::AudioThreadGuard() noexcept
    : outer(innermost) {
    innermost = this;
}

AudioThreadGuard::~AudioThreadGuard() {
    innermost = outer;
}

void AudioThreadGuard::note(const char* function) noexcept {
    for (AudioThreadGuard* guard = innermost; guard != nullptr; guard = guard->outer) {
        if (guard->seen.violations++ == 0)
            guard->seen.first = function;
    }
}

AudioThreadGuardPause::AudioThreadGuardPause() noexcept
    : paused(innermost) {
    innermost = nullptr;
}

AudioThreadGuardPause::~AudioThreadGuardPause() {
    innermost = paused;
}
