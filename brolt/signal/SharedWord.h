// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads and writes of single 32-bit words in a memory image that two threads look at.
//
// The image has a fixed layout, so its fields cannot be std::atomic. A few of them are read, or set
// to zero, by the message thread while the audio thread processes. Each word by itself is whole;
// nothing is promised about two words together. On x86-64 these are plain moves.

#pragma once

#include <atomic>

/// [any thread]
template <typename Word>
Word loadShared(const Word& word) noexcept {
    static_assert(sizeof(Word) == 4 && std::atomic_ref<Word>::is_always_lock_free);
    // atomic_ref takes no const object in C++20; loading does not write.
    return std::atomic_ref<Word>(const_cast<Word&>(word)).load(std::memory_order_relaxed);
}

/// [any thread]
template <typename Word>
void storeShared(Word& word, Word value) noexcept {
    static_assert(sizeof(Word) == 4 && std::atomic_ref<Word>::is_always_lock_free);
    std::atomic_ref<Word>(word).store(value, std::memory_order_relaxed);
}
