// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/PlaybackThread.h"

#include <array>
#include <utility>

namespace {

std::chrono::steady_clock::duration timeOf(std::int32_t frames, int sampleRate) {
    const std::chrono::duration<double> seconds(static_cast<double>(frames) / sampleRate);
    return std::chrono::duration_cast<std::chrono::steady_clock::duration>(seconds);
}

} // namespace

PlaybackThread::PlaybackThread(Renderer& audioRenderer, LoopedInput audioInput, int channels,
                               std::int32_t framesPerBlock)
    : renderer(audioRenderer)
    , input(std::move(audioInput))
    , buffers(channels, framesPerBlock)
    , blockSize(framesPerBlock)
    , blockTime(timeOf(framesPerBlock, input.sampleRate()))
    , thread([this] { run(); }) {}

PlaybackThread::~PlaybackThread() {
    {
        const std::lock_guard lock(mutex);
        isStopped = true;
    }
    stopping.notify_one();
    thread.join();
}

void PlaybackThread::throwIfFailed() {
    const std::lock_guard lock(mutex);
    if (failure)
        std::rethrow_exception(failure);
}

void PlaybackThread::run() {
    try {
        play();
    } catch (...) {
        const std::lock_guard lock(mutex);
        failure = std::current_exception();
    }
}

void PlaybackThread::play() {
    // After a pause of the whole program nothing is made up for.
    constexpr std::chrono::milliseconds lag(200);
    Clock::time_point due = Clock::now();
    std::unique_lock lock(mutex);
    while (!stopping.wait_until(lock, due, [this] { return isStopped; })) {
        lock.unlock();
        processBlock();
        due += blockTime;
        if (Clock::now() - due > lag)
            due = Clock::now();
        lock.lock();
    }
}

void PlaybackThread::processBlock() {
    input.read(buffers, blockSize);
    std::array<float*, 2> channels{};
    for (int c = 0; c < buffers.channelCount(); ++c)
        channels[static_cast<std::size_t>(c)] = buffers.channel(c);
    renderer.process(channels.data(), channels.data(), blockSize);
}
