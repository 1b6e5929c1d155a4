// SPDX-License-Identifier: GPL-3.0-or-later
// When a host counts as having stopped.

#include "QMShell/hosting/ProcessingActivity.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using Clock = ProcessingActivity::Clock;

TEST(ProcessingActivity, hasNotStoppedBeforeTheFirstBlock) {
    const ProcessingActivity activity;
    EXPECT_FALSE(activity.hasStopped(Clock::time_point(1h), 100ms));
}

TEST(ProcessingActivity, hasStoppedWhenTheThresholdIsPassedAndNotWhenItIsReached) {
    ProcessingActivity activity;
    const Clock::time_point block(5s);
    activity.noteBlock(block);
    EXPECT_FALSE(activity.hasStopped(block, 100ms));
    EXPECT_FALSE(activity.hasStopped(block + 100ms, 100ms));
    EXPECT_TRUE(activity.hasStopped(block + 100ms + 1ns, 100ms));
}

TEST(ProcessingActivity, countsFromTheLastBlock) {
    ProcessingActivity activity;
    activity.noteBlock(Clock::time_point(5s));
    activity.noteBlock(Clock::time_point(6s));
    EXPECT_FALSE(activity.hasStopped(Clock::time_point(6s + 50ms), 100ms));
}

TEST(ProcessingActivity, hasStoppedOnceUntilABlockComesAgain) {
    ProcessingActivity activity;
    activity.noteBlock(Clock::time_point(5s));
    activity.noteReset();
    EXPECT_FALSE(activity.hasStopped(Clock::time_point(1h), 100ms));
    activity.noteBlock(Clock::time_point(1h));
    EXPECT_TRUE(activity.hasStopped(Clock::time_point(2h), 100ms));
}

TEST(ProcessingActivity, waitsForTwoBlocksAndAtLeastATenthOfASecond) {
    EXPECT_EQ(ProcessingActivity::threshold(512, 44100.0), 100ms);
    // Two blocks of 4410 at 44.1 kHz are a fifth of a second.
    EXPECT_EQ(ProcessingActivity::threshold(4410, 44100.0), 200ms);
    EXPECT_EQ(ProcessingActivity::threshold(0, 44100.0), 100ms);
    EXPECT_EQ(ProcessingActivity::threshold(8192, 1.0), 16384s);
}

TEST(ProcessingActivity, waitsForABlockLongerThanTheClockCounts) {
    const auto threshold = ProcessingActivity::threshold(1e9, 1e-9);
    EXPECT_GT(threshold, 24h * 365);
}

} // namespace
