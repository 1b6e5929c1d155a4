// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/AutomationSchedule.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

namespace {

constexpr double rate = 1000.0; // a millisecond is a frame
constexpr std::int64_t block = 100;

auto isSetting(std::int32_t index, double value) {
    return testing::AllOf(Field(&ParameterSetting::index, index),
                          Field(&ParameterSetting::value, value));
}

} // namespace

TEST(AutomationSchedule, aChangeComesWithTheBlockThatContainsItsFrame) {
    AutomationSchedule schedule({{0.1, 7, 1.0}, {0.199, 7, 2.0}, {0.2, 7, 3.0}}, rate);
    EXPECT_THAT(schedule.settingsFor(0, block), IsEmpty());
    EXPECT_THAT(schedule.settingsFor(100, block), ElementsAre(isSetting(7, 2.0)));
    EXPECT_THAT(schedule.settingsFor(200, block), ElementsAre(isSetting(7, 3.0)));
    EXPECT_THAT(schedule.settingsFor(300, block), IsEmpty());
}

TEST(AutomationSchedule, theTimeIsRoundedToTheNearestFrameAndHalvesUp) {
    AutomationSchedule schedule({{0.0994, 1, 1.0}, {0.0995, 2, 2.0}}, rate);
    EXPECT_THAT(schedule.settingsFor(0, block), ElementsAre(isSetting(1, 1.0)));
    EXPECT_THAT(schedule.settingsFor(100, block), ElementsAre(isSetting(2, 2.0)));
}

TEST(AutomationSchedule, aParameterChangesOnceABlockToItsLastValue) {
    AutomationSchedule schedule({{0.01, 3, 1.0}, {0.02, 5, 2.0}, {0.03, 3, 4.0}, {0.04, 1, 8.0}},
                                rate);
    // In the order of the parameters' first changes, each with its last value.
    EXPECT_THAT(schedule.settingsFor(0, block),
                ElementsAre(isSetting(3, 4.0), isSetting(5, 2.0), isSetting(1, 8.0)));
}

TEST(AutomationSchedule, changesAtOrAfterTheEndRemain) {
    AutomationSchedule schedule({{0.0, 1, 1.0}, {0.05, 1, 2.0}, {1e300, 1, 3.0}}, rate);
    EXPECT_EQ(schedule.remaining(), 3U);
    EXPECT_THAT(schedule.settingsFor(0, 50), ElementsAre(isSetting(1, 1.0)));
    EXPECT_EQ(schedule.remaining(), 2U);
}
