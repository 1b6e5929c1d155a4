// SPDX-License-Identifier: GPL-3.0-or-later
//
// The hand-over queue between two threads: whole records, in order, and the last one always heard.

#include "brolt/signal/Coefficients.h"
#include "brolt/signal/QMCoefficientQueue.h"

#include <array>
#include <atomic>
#include <bit>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr uint32_t wordCount = sizeof(Coefficients) / sizeof(uint32_t);
using Words = std::array<uint32_t, wordCount>;

/// Every word is another function of the number, so that words of two records never fit together.
Words wordsOfRecord(uint32_t number) {
    Words words{};
    for (uint32_t i = 0; i < wordCount; ++i)
        words[i] = number * (2 * i + 1);
    return words;
}

struct Outcome {
    uint32_t torn = 0;
    uint32_t backwards = 0;
    uint32_t distinct = 0;
    uint32_t last = 0;
};

/// Reads until the writer is done and then as often as a full queue needs to run empty.
Outcome readAll(QMCoefficientQueueInterface& queue, const std::atomic<bool>& writerDone) {
    constexpr int blocksToRunEmpty = 4;
    Outcome outcome;
    int blocksLeft = blocksToRunEmpty;
    while (blocksLeft > 0) {
        if (writerDone.load(std::memory_order_acquire))
            --blocksLeft;
        const auto* record = static_cast<const Coefficients*>(queue.current());
        const auto words = std::bit_cast<Words>(*record);
        const uint32_t number = words[0];
        if (words != wordsOfRecord(number))
            ++outcome.torn;
        if (number < outcome.last)
            ++outcome.backwards;
        if (number != outcome.last)
            ++outcome.distinct;
        outcome.last = number;
    }
    return outcome;
}

/// Pushes 1..count, giving the reader its turn after every `burst` records (0: never).
Outcome stress(uint32_t count, uint32_t burst) {
    QMCoefficientQueue<Coefficients, 5> queue;
    const Words zero = wordsOfRecord(0);
    queue.push(&zero);
    queue.current();

    std::atomic<bool> writerDone{false};
    std::thread writer([&] {
        for (uint32_t number = 1; number <= count; ++number) {
            const Words words = wordsOfRecord(number);
            queue.push(&words);
            if (burst != 0 && number % burst == 0)
                std::this_thread::yield();
        }
        writerDone.store(true, std::memory_order_release);
    });
    const Outcome outcome = readAll(queue, writerDone);
    writer.join();
    return outcome;
}

void expectWhole(const Outcome& outcome, uint32_t count) {
    EXPECT_EQ(outcome.torn, 0U);
    EXPECT_EQ(outcome.backwards, 0U);
    EXPECT_EQ(outcome.last, count);
    // A reader that never met the writer would have shown nothing.
    EXPECT_GT(outcome.distinct, 10U);
}

constexpr uint32_t recordsPushed = 300'000;
constexpr uint32_t recordsPushedAtFullSpeed = 1'000'000;

} // namespace

TEST(CoefficientQueueStress, aWriterAtFullSpeedTearsNoRecord) {
    expectWhole(stress(recordsPushedAtFullSpeed, 0), recordsPushedAtFullSpeed);
}

TEST(CoefficientQueueStress, burstsThatJustFitArriveInOrder) {
    expectWhole(stress(recordsPushed, 3), recordsPushed);
}

TEST(CoefficientQueueStress, burstsThatOverflowArriveInOrder) {
    expectWhole(stress(recordsPushed, 5), recordsPushed);
}

TEST(CoefficientQueueStress, theLastRecordOfEveryBurstIsHeard) {
    // The overtaking case again and again: the writer fills the queue while the reader empties it,
    // and the reader has to end on the last record each time.
    constexpr uint32_t rounds = 20000;
    constexpr uint32_t burst = 6;
    constexpr std::chrono::seconds patience{30};
    QMCoefficientQueue<Coefficients, 5> queue;
    std::atomic<uint32_t> heard{0};
    std::atomic<bool> stop{false};

    std::thread reader([&] {
        while (!stop.load(std::memory_order_relaxed)) {
            const auto* record = static_cast<const Coefficients*>(queue.current());
            heard.store(static_cast<uint32_t>(record->meterVersion), std::memory_order_release);
        }
    });
    for (uint32_t round = 1; round <= rounds; ++round) {
        Coefficients record;
        for (uint32_t i = 1; i <= burst; ++i) {
            record.meterVersion = static_cast<int32_t>(round * burst + i);
            queue.push(&record);
        }
        const uint32_t last = round * burst + burst;
        const auto deadline = std::chrono::steady_clock::now() + patience;
        while (heard.load(std::memory_order_acquire) != last &&
               std::chrono::steady_clock::now() < deadline)
            std::this_thread::yield();
        EXPECT_EQ(heard.load(), last);
        if (HasFailure())
            break;
    }
    stop.store(true, std::memory_order_relaxed);
    reader.join();
}
