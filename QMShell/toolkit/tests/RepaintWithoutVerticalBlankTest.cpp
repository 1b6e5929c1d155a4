// SPDX-License-Identifier: GPL-3.0-or-later
// When windows have to be painted without vertical blanks, by a clock that the test drives; and
// who is counted.

#include "QMShell/toolkit/RepaintWithoutVerticalBlank.h"

#include "QMShell/toolkit/VerticalBlankWatch.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <cstdint>
#include <optional>

namespace {

constexpr bool withWindows = true;
constexpr bool withoutWindows = false;

/// A clock, and the looks fifty times a second.
class Looks {
public:
    explicit Looks(std::uint32_t begin)
        : now(begin) {}

    /// How many of the looks in this time find that blanks have stopped; a blank comes every so
    /// many milliseconds, none at 0.
    int stopped(std::uint32_t durationMs, std::uint32_t blankEveryMs, bool areThereWindows) {
        int count = 0;
        for (std::uint32_t t = 1; t <= durationMs; ++t) {
            ++now;
            if (blankEveryMs != 0 && t % blankEveryMs == 0)
                watch.blankCame(now);
            if (t % 20 == 0 && watch.haveBlanksStopped(now, areThereWindows))
                ++count;
        }
        return count;
    }

private:
    std::uint32_t now;
    VerticalBlankWatch watch;
};

TEST(VerticalBlankWatch, isIdleWhereBlanksCome) {
    for (const std::uint32_t interval : {4, 16, 42, 99})
        EXPECT_EQ(Looks(5000).stopped(2000, interval, withWindows), 0) << interval;
}

TEST(VerticalBlankWatch, actsATenthOfASecondAfterTheFirstWindow) {
    Looks looks(5000);
    // The first look is after 20 ms; 100 ms later, and at each of the 45 looks from there on.
    EXPECT_EQ(looks.stopped(100, 0, withWindows), 0);
    EXPECT_EQ(looks.stopped(20, 0, withWindows), 1);
    EXPECT_EQ(looks.stopped(880, 0, withWindows), 44);
}

TEST(VerticalBlankWatch, actsATenthOfASecondAfterTheLastBlank) {
    Looks looks(5000);
    EXPECT_EQ(looks.stopped(1000, 20, withWindows), 0);
    EXPECT_EQ(looks.stopped(80, 0, withWindows), 0);
    EXPECT_EQ(looks.stopped(20, 0, withWindows), 1);
}

TEST(VerticalBlankWatch, restsAgainWhenBlanksComeBack) {
    Looks looks(5000);
    EXPECT_GT(looks.stopped(1000, 0, withWindows), 0);
    EXPECT_EQ(looks.stopped(1000, 20, withWindows), 0);
}

TEST(VerticalBlankWatch, restsWhereThereIsNoWindow) {
    Looks looks(5000);
    EXPECT_EQ(looks.stopped(2000, 0, withoutWindows), 0);
    // A window that comes now is given its time.
    EXPECT_EQ(looks.stopped(100, 0, withWindows), 0);
    EXPECT_GT(looks.stopped(100, 0, withWindows), 0);
}

TEST(VerticalBlankWatch, livesThroughTheWrapOfTheClock) {
    Looks looks(0xffffffff - 500);
    EXPECT_EQ(looks.stopped(1000, 20, withWindows), 0);
    Looks others(0xffffffff - 60);
    EXPECT_EQ(others.stopped(100, 0, withWindows), 0);
    EXPECT_EQ(others.stopped(20, 0, withWindows), 1);
}

class RepaintWithoutVerticalBlankTest : public ToolkitTest {
protected:
#ifdef _WIN32
    static constexpr bool isNeeded = true;
#else
    static constexpr bool isNeeded = false;
#endif
};

TEST_F(RepaintWithoutVerticalBlankTest, watchesFromTheFirstUserToTheLast) {
    EXPECT_FALSE(RepaintWithoutVerticalBlank::isWatching());
    std::optional<RepaintWithoutVerticalBlank> first;
    std::optional<RepaintWithoutVerticalBlank> second;
    first.emplace();
    second.emplace();
    EXPECT_EQ(RepaintWithoutVerticalBlank::isWatching(), isNeeded);
    first.reset();
    EXPECT_EQ(RepaintWithoutVerticalBlank::isWatching(), isNeeded);
    second.reset();
    EXPECT_FALSE(RepaintWithoutVerticalBlank::isWatching());
}

} // namespace
