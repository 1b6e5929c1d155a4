// SPDX-License-Identifier: GPL-3.0-or-later
// When a host last processed: what a watching timer needs to find out that it has stopped. The
// audio thread writes two words, relaxed; the timer that reads them tolerates a value that is one
// block old and looks again with processing shut out before it acts.
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>

class ProcessingActivity {
public:
    using Clock = std::chrono::steady_clock;

    /// [audio thread]
    void noteBlock(Clock::time_point now) noexcept {
        lastBlock.store(now.time_since_epoch().count(), std::memory_order_relaxed);
        processedSinceReset.store(true, std::memory_order_relaxed);
    }

    /// Whether no block came for longer than the threshold since one was noted. [any thread]
    [[nodiscard]] bool hasStopped(Clock::time_point now, Clock::duration threshold) const noexcept {
        if (!processedSinceReset.load(std::memory_order_relaxed))
            return false;
        const Clock::duration last(lastBlock.load(std::memory_order_relaxed));
        return now.time_since_epoch() - last > threshold;
    }

    /// The instance is at rest; nothing has stopped before a block is noted again.
    /// [message thread], or the host's control thread
    void noteReset() noexcept { processedSinceReset.store(false, std::memory_order_relaxed); }

    /// Two blocks, at least a tenth of a second. [any thread]
    static Clock::duration threshold(double blockSize, double sampleRate) {
        const double seconds = std::max(2.0 * blockSize / sampleRate, 0.1);
        // A block can last for longer than the clock counts.
        constexpr double longest = 1e9;
        return std::chrono::duration_cast<Clock::duration>(
            std::chrono::duration<double>(std::min(seconds, longest)));
    }

private:
    std::atomic<Clock::rep> lastBlock{0};
    std::atomic<bool> processedSinceReset{false};
};
