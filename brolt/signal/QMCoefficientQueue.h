// SPDX-License-Identifier: GPL-3.0-or-later
//
// A ring of records between the thread that changes parameters and the audio thread.
//
// How it crosses the threads. The writer owns writeIndex, the reader owns readIndex, and the
// records between them are pending. At most SlotCount - 2 can be: a further push replaces the
// newest, so the last record of a burst always gets through, and one is consumed a block, so a
// burst of three is spread over three blocks. Replacing is the one moment in which both threads can
// be at one slot: the writer decides by a readIndex that the reader may be moving at that instant.
// Each slot therefore carries a sequence number, odd while the slot is being written. The reader
// copies the record into one of its own and believes the copy only if the sequence was even and the
// same before and after; otherwise it keeps the record it has, does not advance, and tries again
// next block. If a slot is replaced just after the reader took it, the reader sees the new sequence
// when nothing else is pending and takes the slot once more. So no record is torn, none that is
// last is lost, and neither thread ever waits. Records are held in atomic words: a word read with
// acquire from the midst of a write makes the odd sequence visible to the check that follows. On
// x86-64 every access is a plain move, with no locked instruction and no fence.

#pragma once

#include "brolt/signal/QMCoefficientQueueInterface.h"

#include <array>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

/// `Record{}` is what the reader gets before the first push.
template <typename Record, int SlotCount>
class QMCoefficientQueue final : public QMCoefficientQueueInterface {
    static_assert(SlotCount >= 3);
    static_assert(std::is_trivially_copyable_v<Record>);
    static_assert(sizeof(Record) % sizeof(uint32_t) == 0);
    static_assert(std::atomic<uint32_t>::is_always_lock_free);

public:
    /// [message thread]
    QMCoefficientQueue() noexcept;

    const void* current() noexcept override;
    void push(const void* record) noexcept override;
    int32_t discardPending() noexcept override;

    [[nodiscard]] std::size_t recordSize() const noexcept override { return sizeof(Record); }

private:
    static constexpr std::size_t wordCount = sizeof(Record) / sizeof(uint32_t);
    static constexpr int32_t mostPending = SlotCount - 2;

    struct Slot {
        std::atomic<uint32_t> sequence{0}; ///< odd while being written; wraps after 2^31 writes
        std::array<std::atomic<uint32_t>, wordCount> words{};
    };

    static int32_t before(int32_t index) noexcept { return index == 0 ? SlotCount - 1 : index - 1; }

    static int32_t after(int32_t index) noexcept { return index == SlotCount - 1 ? 0 : index + 1; }

    static int32_t pendingBetween(int32_t read, int32_t write) noexcept {
        const int32_t difference = write - read;
        return difference < 0 ? difference + SlotCount : difference;
    }

    Slot& slot(int32_t index) noexcept { return slots[static_cast<std::size_t>(index)]; }

    static void write(Slot& target, const void* record) noexcept;
    bool take(int32_t index) noexcept;

    std::atomic<int32_t> readIndex{0};
    std::atomic<int32_t> writeIndex{0};
    std::array<Slot, static_cast<std::size_t>(SlotCount)> slots;

    // The reader's own: the record in use, and which writing of which slot it is.
    Record inUse{};
    int32_t slotInUse = SlotCount - 1;
    uint32_t sequenceInUse = 0;
};

template <typename Record, int SlotCount>
QMCoefficientQueue<Record, SlotCount>::QMCoefficientQueue() noexcept {
    const Record fresh{};
    for (Slot& each : slots)
        write(each, &fresh);
    sequenceInUse = slot(slotInUse).sequence.load(std::memory_order_relaxed);
}

template <typename Record, int SlotCount>
const void* QMCoefficientQueue<Record, SlotCount>::current() noexcept {
    const int32_t readAt = readIndex.load(std::memory_order_relaxed);
    const int32_t writeAt = writeIndex.load(std::memory_order_acquire);

    if (pendingBetween(readAt, writeAt) != 0) {
        if (take(readAt))
            readIndex.store(after(readAt), std::memory_order_release);
        return &inUse;
    }

    const int32_t last = before(readAt);
    if (last != slotInUse || slot(last).sequence.load(std::memory_order_relaxed) != sequenceInUse)
        take(last);
    return &inUse;
}

template <typename Record, int SlotCount>
void QMCoefficientQueue<Record, SlotCount>::push(const void* record) noexcept {
    const int32_t readAt = readIndex.load(std::memory_order_acquire);
    const int32_t writeAt = writeIndex.load(std::memory_order_relaxed);

    if (pendingBetween(readAt, writeAt) >= mostPending) {
        write(slot(before(writeAt)), record);
        return;
    }

    write(slot(writeAt), record);
    if (writeAt != before(readAt))
        writeIndex.store(after(writeAt), std::memory_order_release);
}

template <typename Record, int SlotCount>
int32_t QMCoefficientQueue<Record, SlotCount>::discardPending() noexcept {
    const int32_t writeAt = writeIndex.load(std::memory_order_acquire);
    readIndex.store(writeAt, std::memory_order_release);
    return writeAt;
}

template <typename Record, int SlotCount>
void QMCoefficientQueue<Record, SlotCount>::write(Slot& target, const void* record) noexcept {
    const uint32_t sequence = target.sequence.load(std::memory_order_relaxed);
    target.sequence.store(sequence + 1, std::memory_order_relaxed);

    const auto* bytes = static_cast<const unsigned char*>(record);
    for (std::atomic<uint32_t>& word : target.words) {
        uint32_t value = 0;
        std::memcpy(&value, bytes, sizeof value);
        word.store(value, std::memory_order_release);
        bytes += sizeof value;
    }

    target.sequence.store(sequence + 2, std::memory_order_release);
}

// Takes the slot into use, or answers false and leaves everything as it was if the writer was at
// it.
template <typename Record, int SlotCount>
bool QMCoefficientQueue<Record, SlotCount>::take(int32_t index) noexcept {
    const Slot& source = slot(index);
    const uint32_t sequence = source.sequence.load(std::memory_order_acquire);
    if ((sequence & 1U) != 0)
        return false;

    std::array<uint32_t, wordCount> words;
    for (std::size_t i = 0; i < wordCount; ++i)
        words[i] = source.words[i].load(std::memory_order_acquire);

    if (source.sequence.load(std::memory_order_relaxed) != sequence)
        return false;

    inUse = std::bit_cast<Record>(words);
    slotInUse = index;
    sequenceInUse = sequence;
    return true;
}
