// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/FolderTrail.h"

#include "presets/record/Utf8Path.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <deque>

namespace {

class FolderTrailTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    FolderTrail trail;

    std::string makeFolder(const std::string& name) {
        std::filesystem::create_directory(directory / name);
        return utf8FromPath(directory / name);
    }
};

} // namespace

TEST_F(FolderTrailTest, differentFoldersMayFollowEachOther) {
    const FolderTrail::Step first(trail, makeFolder("a"));
    const FolderTrail::Step second(trail, makeFolder("b"));
    EXPECT_TRUE(first.isAllowed());
    EXPECT_TRUE(second.isAllowed());
}

TEST_F(FolderTrailTest, aFolderOnTheWayIsNotEnteredAgainUnderAnyName) {
    const std::string a = makeFolder("a");
    const FolderTrail::Step first(trail, a);
    const FolderTrail::Step between(trail, makeFolder("b"));
    const FolderTrail::Step again(trail, a + "/../a");
    EXPECT_FALSE(again.isAllowed());
}

TEST_F(FolderTrailTest, aRefusedStepDoesNotOpenTheWay) {
    const std::string a = makeFolder("a");
    const FolderTrail::Step first(trail, a);
    { const FolderTrail::Step refused(trail, a); }
    const FolderTrail::Step again(trail, a);
    EXPECT_FALSE(again.isAllowed());
}

TEST_F(FolderTrailTest, aFolderThatWasLeftMayBeEnteredSixteenTimesInAll) {
    const std::string a = makeFolder("a");
    for (int visit = 1; visit <= 16; ++visit)
        EXPECT_TRUE(FolderTrail::Step(trail, a).isAllowed()) << visit;
    EXPECT_FALSE(FolderTrail::Step(trail, a).isAllowed());
    EXPECT_TRUE(FolderTrail::Step(trail, makeFolder("b")).isAllowed());
}

TEST_F(FolderTrailTest, foldersThatCannotBeLookedAtAreBoundedByDepthAlone) {
    const std::string missing = utf8FromPath(directory / "missing");
    std::deque<FolderTrail::Step> steps;
    for (int depth = 1; depth <= 64; ++depth)
        EXPECT_TRUE(steps.emplace_back(trail, missing).isAllowed()) << depth;
    EXPECT_FALSE(steps.emplace_back(trail, missing).isAllowed());
    steps.clear();
    EXPECT_TRUE(FolderTrail::Step(trail, missing).isAllowed());
}
