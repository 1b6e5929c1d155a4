// SPDX-License-Identifier: GPL-3.0-or-later
// The gate between process calls and those who change what they use.

#include "QMShell/hosting/ProcessingGate.h"

#include <gtest/gtest.h>

namespace {

TEST(ProcessingGate, isOpenAtFirstAndAfterEachBlock) {
    ProcessingGate gate;
    for (int block = 0; block < 3; ++block) {
        ASSERT_TRUE(gate.enter());
        gate.leave();
    }
}

TEST(ProcessingGate, turnsABlockAwayWhileItIsClosed) {
    ProcessingGate gate;
    gate.close();
    EXPECT_FALSE(gate.enter());
    gate.reopen();
    EXPECT_TRUE(gate.enter());
}

TEST(ProcessingGate, cannotBeClosedWhileABlockRuns) {
    ProcessingGate gate;
    ASSERT_TRUE(gate.enter());
    EXPECT_FALSE(gate.tryClose());
    gate.leave();
    EXPECT_TRUE(gate.tryClose());
}

TEST(ProcessingGate, turnsASecondProcessCallAwayAndKeepsTheFirstInside) {
    ProcessingGate gate;
    ASSERT_TRUE(gate.enter());
    EXPECT_FALSE(gate.enter());
    EXPECT_FALSE(gate.tryClose());
}

TEST(ProcessingPause, closesTheGateForAsLongAsItLives) {
    ProcessingGate gate;
    {
        const ProcessingPause pause(gate);
        EXPECT_FALSE(gate.enter());
    }
    EXPECT_TRUE(gate.enter());
}

} // namespace
