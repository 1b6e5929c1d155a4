// SPDX-License-Identifier: GPL-3.0-or-later
// The real recycle bin, in a home folder of the test program's own. reveal() is not tested: it
// opens a window.
#include "presets/manager/PresetDesktop.h"

#include "presets/manager/tests/PresetBytes.h"
#include "presets/manager/tests/TestHome.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

class PresetDesktopTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    PresetDesktop desktop;
    std::filesystem::path trash = testHomeFolder() / ".local" / "share" / "Trash" / "files";

    void SetUp() override {
#ifdef _WIN32
        GTEST_SKIP() << "Windows has no recycle bin that a test could have for itself";
#endif
    }

    void TearDown() override {
        std::filesystem::remove_all(testHomeFolder() / ".local");
    }
};

} // namespace

TEST_F(PresetDesktopTest, aFileEndsUpInTheTrashOfAUserWhoHadNone) {
    writeFile(directory / "Kick.qmpreset", "content");
    ASSERT_FALSE(std::filesystem::exists(trash));
    EXPECT_TRUE(desktop.moveToTrash((directory / "Kick.qmpreset").string()));
    EXPECT_TRUE(namesIn(directory.path()).empty());
    EXPECT_EQ(readFile(trash / "Kick.qmpreset"), "content");
}

TEST_F(PresetDesktopTest, aSecondFileOfTheNameDoesNotReplaceTheFirst) {
    for (const char* content : {"first", "second"}) {
        writeFile(directory / "Kick.qmpreset", content);
        EXPECT_TRUE(desktop.moveToTrash((directory / "Kick.qmpreset").string()));
    }
    ASSERT_EQ(namesIn(trash).size(), 2u);
    EXPECT_EQ(readFile(trash / "Kick.qmpreset"), "first");
}

TEST_F(PresetDesktopTest, aFolderGoesWithEverythingInIt) {
    writeFile(directory / "Kicks" / "808.qmpreset", "content");
    EXPECT_TRUE(desktop.moveToTrash((directory / "Kicks").string()));
    EXPECT_TRUE(namesIn(directory.path()).empty());
    EXPECT_EQ(readFile(trash / "Kicks" / "808.qmpreset"), "content");
}

TEST_F(PresetDesktopTest, whatIsGoneAlreadyCountsAsMoved) {
    EXPECT_TRUE(desktop.moveToTrash((directory / "missing").string()));
}

TEST_F(PresetDesktopTest, aTrashThatCannotBeMadeLeavesTheFile) {
    writeFile(testHomeFolder() / ".local", "no folder");
    writeFile(directory / "Kick.qmpreset", "content");
    EXPECT_FALSE(desktop.moveToTrash((directory / "Kick.qmpreset").string()));
    EXPECT_EQ(readFile(directory / "Kick.qmpreset"), "content");
}
