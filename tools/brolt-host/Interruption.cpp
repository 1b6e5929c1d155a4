// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/Interruption.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<int> receivedSignal{0};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler writes it");

extern "C" void noteSignal(int signal) {
    receivedSignal.store(signal, std::memory_order_relaxed);
    // Windows forgets the handler when it calls it.
    std::signal(signal, noteSignal);
}

void watch(int signal) {
    if (std::signal(signal, noteSignal) == SIG_IGN)
        std::signal(signal, SIG_IGN);
}

} // namespace

void watchForInterruption() {
    watch(SIGINT);
    watch(SIGTERM);
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

void throwIfInterrupted() {
    const int signal = receivedSignal.load(std::memory_order_relaxed);
    if (signal != 0)
        throw Interrupted{signal};
}
