// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps what may not run beside a process call apart from it, without a lock in the audio thread.
//
// How it crosses the threads. One atomic word says whether the gate is open, a block is running or
// a control thread has closed it. The audio thread enters with one compare-and-exchange and leaves
// with one store; it never waits for longer than a few microseconds. A control thread waits for a
// running block to end, which is the host's own business and takes no longer than a block. Hosts
// promise not to process while they change the layout or restart an instance, and mostly keep it;
// the gate is for the others, and for our own timer, which cannot know when a host goes on.
#pragma once

#include <atomic>
#include <thread>

#include <immintrin.h>

class ProcessingGate {
public:
    /// False when a control thread has closed the gate and goes on longer than bounded patience:
    /// the block is to be given up. True asks for leave(). [audio thread]
    bool enter() noexcept {
        for (int attempt = 0; attempt < patience; ++attempt) {
            int expected = open;
            if (state.compare_exchange_strong(expected, inside, std::memory_order_acquire,
                                              std::memory_order_relaxed))
                return true;
            if (expected == inside)
                return false; // a second process call at the same time
            _mm_pause();
        }
        return false;
    }

    /// [audio thread]
    void leave() noexcept { state.store(open, std::memory_order_release); }

    /// Waits for a running block. Asks for reopen(). One control thread at a time.
    /// [message thread], or the host's control thread
    void close() {
        while (!tryClose())
            std::this_thread::yield();
    }

    /// False while a block runs. [message thread]
    bool tryClose() {
        int expected = open;
        return state.compare_exchange_strong(expected, closed, std::memory_order_acquire,
                                             std::memory_order_relaxed);
    }

    /// [message thread], or the host's control thread
    void reopen() { state.store(open, std::memory_order_release); }

private:
    static constexpr int open = 0;
    static constexpr int inside = 1;
    static constexpr int closed = 2;
    /// Tries of the audio thread, some 40 ns each: longer than a reset takes.
    static constexpr int patience = 200;

    static_assert(std::atomic<int>::is_always_lock_free);
    std::atomic<int> state{open};
};

/// The gate is closed for as long as this lives. [message thread], or the host's control thread
class ProcessingPause {
public:
    explicit ProcessingPause(ProcessingGate& paused)
        : gate(paused) {
        gate.close();
    }

    ~ProcessingPause() { gate.reopen(); }

    ProcessingPause(const ProcessingPause&) = delete;
    ProcessingPause& operator=(const ProcessingPause&) = delete;

private:
    ProcessingGate& gate;
};
