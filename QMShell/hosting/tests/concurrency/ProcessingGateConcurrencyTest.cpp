// SPDX-License-Identifier: GPL-3.0-or-later
// The gate between two threads: what one of them writes while it is closed, or inside, the other
// never sees half done.

#include "QMShell/hosting/ProcessingGate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

TEST(ProcessingGateConcurrency, keepsBlocksAndPausesApart) {
    ProcessingGate gate;
    // Plain, on purpose: only the gate keeps the threads apart.
    int first = 0;
    int second = 0;
    std::atomic<bool> isOver{false};
    int blocks = 0;
    int torn = 0;

    std::thread audio([&] {
        while (!isOver) {
            if (!gate.enter())
                continue;
            torn += first != second ? 1 : 0;
            ++blocks;
            gate.leave();
        }
    });
    constexpr int pauses = 20000;
    for (int i = 1; i <= pauses; ++i) {
        const ProcessingPause pause(gate);
        first = i;
        second = i;
    }
    // The audio thread gets its turn even where it had none so far.
    while (true) {
        const ProcessingPause pause(gate);
        if (blocks > 0)
            break;
    }
    isOver = true;
    audio.join();
    EXPECT_EQ(torn, 0);
    EXPECT_GT(blocks, 0);
    EXPECT_EQ(first, pauses);
}

} // namespace
