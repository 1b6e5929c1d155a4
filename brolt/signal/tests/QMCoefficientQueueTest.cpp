// SPDX-License-Identifier: GPL-3.0-or-later
//
// The hand-over queue as one thread sees it.

#include "brolt/signal/QMCoefficientQueue.h"

#include "brolt/signal/tests/BroltTestKit.h"
#include "brolt/signal/tests/reference/ReferenceQueue.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

using Queue = QMCoefficientQueue<Coefficients, 5>;

/// A record whose every word tells its number.
Coefficients numbered(int32_t number) {
    std::array<uint32_t, 18> words{};
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = static_cast<uint32_t>(number) * 100U + static_cast<uint32_t>(i);
    words[5] = static_cast<uint32_t>(number);
    return std::bit_cast<Coefficients>(words);
}

void push(QMCoefficientQueueInterface& queue, int32_t number) {
    const Coefficients record = numbered(number);
    queue.push(&record);
}

/// The number of the current record, -1 for a fresh one; fails when it is neither, whole.
int32_t current(QMCoefficientQueueInterface& queue) {
    const auto* record = static_cast<const Coefficients*>(queue.current());
    const int32_t number = record->meterVersion;
    EXPECT_EQ(wordsOf(*record), wordsOf(number == -1 ? Coefficients{} : numbered(number)));
    return number;
}

} // namespace

TEST(CoefficientQueue, knowsTheSizeOfItsRecord) {
    const Queue queue;
    EXPECT_EQ(queue.recordSize(), 72U);
}

TEST(CoefficientQueue, answersAFreshRecordBeforeTheFirstPush) {
    Queue queue;
    EXPECT_EQ(current(queue), -1);
    EXPECT_EQ(current(queue), -1);
}

TEST(CoefficientQueue, handsOverOneRecordABlockInTheirOrderAndKeepsTheLast) {
    Queue queue;
    push(queue, 1);
    push(queue, 2);
    push(queue, 3);
    EXPECT_EQ(current(queue), 1);
    EXPECT_EQ(current(queue), 2);
    EXPECT_EQ(current(queue), 3);
    EXPECT_EQ(current(queue), 3);
    EXPECT_EQ(current(queue), 3);
}

TEST(CoefficientQueue, aFourthPushOverwritesTheNewestPendingRecord) {
    Queue queue;
    for (int32_t number = 1; number <= 4; ++number)
        push(queue, number);
    EXPECT_EQ(current(queue), 1);
    EXPECT_EQ(current(queue), 2);
    EXPECT_EQ(current(queue), 4);
    EXPECT_EQ(current(queue), 4);
}

TEST(CoefficientQueue, aLongBurstKeepsItsFirstTwoRecordsAndItsLast) {
    Queue queue;
    for (int32_t number = 1; number <= 1000; ++number)
        push(queue, number);
    EXPECT_EQ(current(queue), 1);
    EXPECT_EQ(current(queue), 2);
    EXPECT_EQ(current(queue), 1000);
    EXPECT_EQ(current(queue), 1000);
}

TEST(CoefficientQueue, aPushBehindAPendingRecordIsReadOnTheBlockAfterNext) {
    Queue queue;
    push(queue, 1);
    EXPECT_EQ(current(queue), 1);
    push(queue, 2); // pending, the reader stands on the slot before it
    push(queue, 3);
    EXPECT_EQ(current(queue), 2);
    EXPECT_EQ(current(queue), 3);
    EXPECT_EQ(current(queue), 3);
}

TEST(CoefficientQueue, discardingNothingLeavesThePreviouslyConsumedRecordCurrent) {
    Queue queue;
    push(queue, 1);
    EXPECT_EQ(current(queue), 1);
    EXPECT_EQ(queue.discardPending(), 1);
    EXPECT_EQ(current(queue), 1);
}

TEST(CoefficientQueue, discardingBeforeTheFirstPushLeavesTheFreshRecordCurrent) {
    Queue queue;
    EXPECT_EQ(queue.discardPending(), 0);
    EXPECT_EQ(current(queue), -1);
}

TEST(CoefficientQueue, discardingPendingRecordsMakesTheNewestOneCurrent) {
    // The read index then stands behind the newest record. A reset relies on it: it refreshes all
    // parameters, discards, and the next block runs with the refreshed record at once.
    Queue queue;
    push(queue, 1);
    EXPECT_EQ(current(queue), 1);
    push(queue, 2);
    push(queue, 3);
    EXPECT_EQ(queue.discardPending(), 3);
    EXPECT_EQ(current(queue), 3);
    push(queue, 4);
    EXPECT_EQ(current(queue), 4);
}

TEST(CoefficientQueue, theRecordInUseStaysAsItIsThroughPushesAndDiscards) {
    Queue queue;
    push(queue, 1);
    const auto* record = static_cast<const Coefficients*>(queue.current());
    for (int32_t number = 2; number < 20; ++number)
        push(queue, number);
    queue.discardPending();
    EXPECT_EQ(wordsOf(*record), wordsOf(numbered(1)));
}

TEST(CoefficientQueue, takesARecordFromAnyAddress) {
    alignas(4) unsigned char payload[sizeof(Coefficients) + 1];
    const Coefficients record = numbered(7);
    std::memcpy(payload + 1, &record, sizeof record);
    Queue queue;
    queue.push(payload + 1);
    EXPECT_EQ(current(queue), 7);
}

TEST(CoefficientQueue, canBeDestroyedThroughItsInterface) {
    const std::unique_ptr<QMCoefficientQueueInterface> queue = std::make_unique<Queue>();
    push(*queue, 1);
    EXPECT_EQ(current(*queue), 1);
}

// Every sequence of eight operations, and with it every shorter one as its beginning.
TEST(CoefficientQueue, everyInterleavingBehavesAsThePlainIndexArithmetic) {
    constexpr int length = 8;
    constexpr int sequences = 6561; // 3^8
    for (int sequence = 0; sequence < sequences; ++sequence) {
        Queue queue;
        ReferenceQueue<Coefficients> reference;
        std::string story;
        int32_t number = 0;
        for (int step = 0, rest = sequence; step < length; ++step, rest /= 3) {
            switch (rest % 3) {
            case 0:
                story += " push";
                ++number;
                push(queue, number);
                reference.push(numbered(number));
                break;
            case 1: {
                story += " current";
                const auto* record = static_cast<const Coefficients*>(queue.current());
                ASSERT_EQ(wordsOf(*record), wordsOf(reference.current())) << story;
                break;
            }
            default:
                story += " discard";
                ASSERT_EQ(queue.discardPending(), reference.discardPending()) << story;
            }
            ASSERT_LE(reference.pending(), 3) << story;
        }
    }
}
