// SPDX-License-Identifier: GPL-3.0-or-later
// Hosts that end without putting their plug-ins away, as many do.
#include "brolt/library/tests/support/HostWait.h"
#include "brolt/library/tests/support/LibraryInstance.h"

#include <cstdlib>

namespace {

constexpr int exitStatus = 7;

/// Never put away. In the process that dies only, where nobody looks for leaks.
LibraryInstance* abandoned = nullptr;

[[noreturn]] void exitInTheMidst() {
    abandoned = new LibraryInstance;
    abandoned->start();
    (void)abandoned->render(testAudio(2, 1000));
    std::exit(exitStatus);
}

} // namespace

TEST(ExitDeathTest, withAnInstanceInUseIsAnOrdinaryOne) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the leak detector ends a process that leaves things behind as a failure";
#endif
    // A process of its own, since threads are running in this one.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(exitInTheMidst(), ::testing::ExitedWithCode(exitStatus), "");
}
