// SPDX-License-Identifier: GPL-3.0-or-later
//
// Audio at the pace of an audio device, on a thread of its own, with nobody listening: what an
// editor's displays show, and the company that its edits have in a workstation.

#pragma once

#include "tools/brolt-host/Renderer.h"
#include "tools/brolt-host/editor/LoopedInput.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

class PlaybackThread {
public:
    /// Begins at once. The renderer must have as many channels and blocks as large as said here,
    /// and outlive this object; nobody else may process with it. [message thread]
    PlaybackThread(Renderer& renderer, LoopedInput input, int channels, std::int32_t blockSize);

    /// Stops after the block that is being processed. [message thread]
    ~PlaybackThread();

    PlaybackThread(const PlaybackThread&) = delete;
    PlaybackThread& operator=(const PlaybackThread&) = delete;

    /// Throws what ended the thread early, if anything did: a HostError of file or plug-in.
    /// [message thread]
    void throwIfFailed();

private:
    using Clock = std::chrono::steady_clock;

    void run();
    void play();
    void processBlock();

    Renderer& renderer;
    LoopedInput input;
    ChannelBuffers buffers;
    std::int32_t blockSize;
    Clock::duration blockTime;

    std::mutex mutex;
    std::condition_variable stopping;
    bool isStopped = false;     ///< guarded by the mutex
    std::exception_ptr failure; ///< guarded by the mutex
    std::thread thread;         ///< the last member: it uses the others
};
