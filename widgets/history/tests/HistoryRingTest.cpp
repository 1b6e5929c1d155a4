// SPDX-License-Identifier: GPL-3.0-or-later
// The storage of histories.
#include "widgets/history/HistoryRing.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Sample {
    double time = 0.0;
};

using Ring = HistoryRing<Sample>;

std::vector<double> timesIn(const Ring& ring) {
    std::vector<double> times;
    for (std::size_t i = 0; i < ring.size(); ++i)
        times.push_back(ring[i].time);
    return times;
}

} // namespace

TEST(HistoryRing, KeepsItsSamplesInOrderWhileItGrows) {
    Ring ring;
    EXPECT_TRUE(ring.isEmpty());
    std::vector<double> expected;
    for (int i = 0; i < 100; ++i) {
        ring.append({static_cast<double>(i)});
        expected.push_back(i);
    }
    EXPECT_EQ(timesIn(ring), expected);
    EXPECT_EQ(ring.newest().time, 99.0);
}

TEST(HistoryRing, DropsWhatIsTooOldAndWhatIsOfAClockPutBack) {
    Ring ring;
    for (int i = 0; i < 10; ++i)
        ring.append({static_cast<double>(i)});
    ring.dropOutside(3.0, 7.0);
    EXPECT_EQ(timesIn(ring), (std::vector<double>{3.0, 4.0, 5.0, 6.0, 7.0}));
    ring.dropOutside(100.0, 200.0);
    EXPECT_TRUE(ring.isEmpty());
    ring.dropOutside(0.0, 1.0);
    ring.append({150.0});
    ring.dropOutside(-10.0, 5.0);
    EXPECT_TRUE(ring.isEmpty());
}

TEST(HistoryRing, UsesItsPlacesAgain) {
    Ring ring;
    for (int i = 0; i < 10000; ++i) {
        ring.append({static_cast<double>(i)});
        ring.dropOutside(i - 20.0, i);
    }
    EXPECT_EQ(ring.size(), 21U);
    EXPECT_EQ(ring[0].time, 9979.0);
    EXPECT_EQ(ring.newest().time, 9999.0);
    // 16 were too few.
    EXPECT_EQ(ring.capacity(), 32U);
}

TEST(HistoryRing, TheOldestGoesWhereThereAreTooMany) {
    Ring ring;
    for (std::size_t i = 0; i < Ring::most + 5; ++i)
        ring.append({static_cast<double>(i)});
    EXPECT_EQ(ring.size(), Ring::most);
    EXPECT_EQ(ring.capacity(), Ring::most);
    EXPECT_EQ(ring[0].time, 5.0);
    EXPECT_EQ(ring.newest().time, static_cast<double>(Ring::most + 4));
}

TEST(HistoryRing, BeginsAnewAfterItWasCleared) {
    Ring ring;
    ring.append({1.0});
    ring.clear();
    EXPECT_TRUE(ring.isEmpty());
    ring.append({2.0});
    EXPECT_EQ(timesIn(ring), std::vector<double>{2.0});
}
