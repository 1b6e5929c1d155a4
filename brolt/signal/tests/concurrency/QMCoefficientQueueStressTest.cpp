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

/// What the test does not want to wait longer for, however busy the machine is.
constexpr std::chrono::seconds patience{60};

/// A run goes on until the writer has pushed and the reader has seen this many records: on a busy
/// machine a writer can be through before the reader gets its first turn.
constexpr uint32_t recordsToPushInBursts = 100'000;
constexpr uint32_t recordsToPushAtFullSpeed = 1'000'000;
constexpr uint32_t recordsToSee = 300;

struct Outcome {
    uint32_t torn = 0;
    uint32_t backwards = 0;
    uint32_t distinct = 0;
    uint32_t lastSeen = 0;
    uint32_t lastPushed = 0;
};

/// A writer that gives the reader its turn after every `burst` records (0: never) and a reader that
/// takes whatever comes.
class Stress {
public:
    explicit Stress(uint32_t burstLength)
        : burst(burstLength)
        , recordsToPush(burstLength == 0 ? recordsToPushAtFullSpeed : recordsToPushInBursts) {}

    Outcome run() {
        const Words zero = wordsOfRecord(0);
        queue.push(&zero);
        queue.current();

        std::thread writer([this] { writeAll(); });
        readAll();
        writer.join();
        return outcome;
    }

private:
    void writeAll() {
        const auto deadline = std::chrono::steady_clock::now() + patience;
        uint32_t number = 0;
        while (number < recordsToPush ||
               (seen.load(std::memory_order_relaxed) < recordsToSee &&
                (number % 1024 != 0 || std::chrono::steady_clock::now() < deadline))) {
            const Words words = wordsOfRecord(++number);
            queue.push(&words);
            if (burst != 0 && number % burst == 0)
                std::this_thread::yield();
        }
        outcome.lastPushed = number;
        writerDone.store(true, std::memory_order_release);
    }

    void readAll() {
        constexpr int blocksToRunEmpty = 4;
        int blocksLeft = blocksToRunEmpty;
        while (blocksLeft > 0) {
            if (writerDone.load(std::memory_order_acquire))
                --blocksLeft;
            const auto* record = static_cast<const Coefficients*>(queue.current());
            const auto words = std::bit_cast<Words>(*record);
            const uint32_t number = words[0];
            if (words != wordsOfRecord(number))
                ++outcome.torn;
            if (number < outcome.lastSeen)
                ++outcome.backwards;
            if (number != outcome.lastSeen)
                seen.store(++outcome.distinct, std::memory_order_relaxed);
            outcome.lastSeen = number;
        }
    }

    uint32_t burst;
    uint32_t recordsToPush;
    QMCoefficientQueue<Coefficients, 5> queue;
    std::atomic<uint32_t> seen{0};
    std::atomic<bool> writerDone{false};
    Outcome outcome; ///< lastPushed is the writer's, the rest the reader's
};

void expectWholeAndInOrder(uint32_t burst) {
    const Outcome outcome = Stress(burst).run();
    EXPECT_EQ(outcome.torn, 0U);
    EXPECT_EQ(outcome.backwards, 0U);
    EXPECT_EQ(outcome.lastSeen, outcome.lastPushed);
    EXPECT_GE(outcome.distinct, recordsToSee);
}

} // namespace

TEST(CoefficientQueueStress, aWriterAtFullSpeedTearsNoRecord) {
    expectWholeAndInOrder(0);
}

TEST(CoefficientQueueStress, burstsThatJustFitArriveInOrder) {
    expectWholeAndInOrder(3);
}

TEST(CoefficientQueueStress, burstsThatOverflowArriveInOrder) {
    expectWholeAndInOrder(5);
}

TEST(CoefficientQueueStress, theLastRecordOfEveryBurstIsHeard) {
    // The overtaking case again and again: the writer fills the queue while the reader empties it,
    // and the reader has to end on the last record each time. On a busy machine, where every round
    // costs the threads their turns, fewer rounds have to do.
    constexpr uint32_t rounds = 20000;
    constexpr uint32_t fewestRounds = 100;
    constexpr std::chrono::seconds enough{5};
    const auto start = std::chrono::steady_clock::now();
    constexpr uint32_t burst = 6;
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
        const bool takesLong = std::chrono::steady_clock::now() - start > enough;
        if (HasFailure() || (round >= fewestRounds && takesLong))
            break;
    }
    stop.store(true, std::memory_order_relaxed);
    reader.join();
}
