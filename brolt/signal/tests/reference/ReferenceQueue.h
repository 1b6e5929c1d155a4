// SPDX-License-Identifier: GPL-3.0-or-later
//
// The hand-over queue as plain index arithmetic for one thread: what the queue that crosses threads
// has to look like to anyone who uses it from one.

#pragma once

#include <array>
#include <cstddef>

template <typename Record>
class ReferenceQueue {
public:
    const Record& current() {
        if (pending() != 0) {
            const int taken = readIndex;
            readIndex = (readIndex + 1) % 5;
            return at(taken);
        }
        return at(readIndex + 4);
    }

    void push(const Record& record) {
        if (pending() == 3 || pending() == 4) {
            at(writeIndex + 4) = record;
            return;
        }
        at(writeIndex) = record;
        if (writeIndex != (readIndex + 4) % 5)
            writeIndex = (writeIndex + 1) % 5;
    }

    int discardPending() {
        readIndex = writeIndex;
        return readIndex;
    }

    int pending() const { return (writeIndex - readIndex + 5) % 5; }

private:
    Record& at(int index) { return slots[static_cast<std::size_t>(index % 5)]; }

    int readIndex = 0;
    int writeIndex = 0;
    std::array<Record, 5> slots{};
};
