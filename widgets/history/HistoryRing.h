// SPDX-License-Identifier: GPL-3.0-or-later
// The samples of a history, the oldest first, in storage that is used again: it grows until it
// holds as many as fall into the history's length at the rate of its ticks, and no further. A
// sample has its time in seconds, `double time`. [message thread]
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

template <typename Sample>
class HistoryRing {
public:
    /// However long the history and however fast the ticks; the oldest sample goes then.
    static constexpr std::size_t most = 4096;

    [[nodiscard]] bool isEmpty() const { return count == 0; }

    [[nodiscard]] std::size_t size() const { return count; }

    /// How many there is room for now.
    [[nodiscard]] std::size_t capacity() const { return slots.size(); }

    /// 0 is the oldest.
    [[nodiscard]] const Sample& operator[](std::size_t index) const { return slots[slotOf(index)]; }

    /// There must be one.
    [[nodiscard]] Sample& newest() { return slots[slotOf(count - 1)]; }

    [[nodiscard]] const Sample& newest() const { return slots[slotOf(count - 1)]; }

    void append(const Sample& sample) {
        if (count == most)
            dropOldest();
        else if (count == slots.size())
            grow();
        ++count;
        newest() = sample;
    }

    /// Samples from after the latest time are of a clock that has been put back since.
    void dropOutside(double earliest, double latest) {
        while (count > 0 && (*this)[0].time < earliest)
            dropOldest();
        while (count > 0 && newest().time > latest)
            --count;
    }

    void clear() { count = 0; }

private:
    [[nodiscard]] std::size_t slotOf(std::size_t index) const {
        return (first + index) % slots.size();
    }

    void dropOldest() {
        first = slotOf(1);
        --count;
    }

    void grow() {
        std::vector<Sample> larger(std::clamp<std::size_t>(2 * slots.size(), 16, most));
        for (std::size_t i = 0; i < count; ++i)
            larger[i] = (*this)[i];
        slots = std::move(larger);
        first = 0;
    }

    std::vector<Sample> slots;
    std::size_t first = 0;
    std::size_t count = 0;
};
