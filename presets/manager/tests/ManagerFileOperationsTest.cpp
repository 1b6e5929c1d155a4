// SPDX-License-Identifier: GPL-3.0-or-later
// Renaming, trashing, making folders: what succeeds, what does not, and that nothing is lost.
#include "presets/manager/tests/PresetTreeTest.h"
#include "presets/manager/tests/UnprivilegedChild.h"

#ifdef _WIN32
#    include <windows.h>
#endif

namespace fs = std::filesystem;

namespace {

class ManagerFileOperationsTest : public PresetTreeTest {
protected:
    void SetUp() override {
        PresetTreeTest::SetUp();
        writePreset(user / "a.qmpreset", 1);
        writePreset(user / "b.qmpreset", 2);
        writePreset(user / "Kicks" / "k.qmpreset", 3);
        writePreset(factory / "Bass" / "f.qmpreset", 4);
        manager.rescan();
    }
};

} // namespace

TEST_F(ManagerFileOperationsTest, aRenamedPresetIsListedUnderItsNewNameWithItsOldIdentifier) {
    EXPECT_TRUE(manager.renamePreset(userRoot, 0, "new"));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "b.qmpreset", "new.qmpreset"}));
    EXPECT_EQ(manager.presetName(idSelector, 1), "new");
    EXPECT_TRUE(manager.renamePreset(idSelector, 3, "newer"));
    EXPECT_EQ(namesIn(user / "Kicks"), Names{"newer.qmpreset"});
}

TEST_F(ManagerFileOperationsTest, renamingToAnotherPresetsNameSendsThatOneToTheRecycleBin) {
    EXPECT_TRUE(manager.renamePreset(userRoot, 0, "b"));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "b.qmpreset"}));
    EXPECT_EQ(idAtEndOf(user / "b.qmpreset"), idOf(1));
    EXPECT_EQ(idAtEndOf(trash / "b.qmpreset"), idOf(2));
}

TEST_F(ManagerFileOperationsTest, renamingToATakenNameIsRefusedWhereNothingCanBeRecycled) {
    desktop.trashWorks = false;
    EXPECT_FALSE(manager.renamePreset(userRoot, 0, "b"));
    EXPECT_EQ(idAtEndOf(user / "a.qmpreset"), idOf(1));
    EXPECT_EQ(idAtEndOf(user / "b.qmpreset"), idOf(2));
}

TEST_F(ManagerFileOperationsTest, renamingToItsOwnNameChangesNothing) {
    EXPECT_TRUE(manager.renamePreset(userRoot, 0, "a"));
    EXPECT_EQ(idAtEndOf(user / "a.qmpreset"), idOf(1));
    EXPECT_TRUE(desktop.trashed.empty());
}

TEST_F(ManagerFileOperationsTest, capitalsOfANameCanBeChanged) {
#ifdef _WIN32
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr)
        GTEST_SKIP() << "Wine reports such a change done and does nothing";
#endif
    EXPECT_TRUE(manager.renamePreset(userRoot, 0, "A"));
    EXPECT_EQ(namesIn(user), (Names{"A.qmpreset", "Kicks", "b.qmpreset"}));
    EXPECT_TRUE(desktop.trashed.empty());
}

TEST_F(ManagerFileOperationsTest, aPresetDoesNotReplaceAFolder) {
    fs::create_directory(user / "c.qmpreset");
    EXPECT_FALSE(manager.renamePreset(userRoot, 0, "c"));
    EXPECT_TRUE(fs::is_directory(user / "c.qmpreset"));
    EXPECT_TRUE(fs::exists(user / "a.qmpreset"));
}

TEST_F(ManagerFileOperationsTest, aPresetThatVanishedCannotBeRenamed) {
    fs::remove(user / "a.qmpreset");
    EXPECT_FALSE(manager.renamePreset(userRoot, 0, "b"));
    EXPECT_EQ(idAtEndOf(user / "b.qmpreset"), idOf(2));
    EXPECT_TRUE(desktop.trashed.empty());
    // Not rescanned: nothing succeeded.
    EXPECT_EQ(manager.presetName(userRoot, 0), "a");
}

TEST_F(ManagerFileOperationsTest, trashedPresetsAreInTheRecycleBinAndNoLongerListed) {
    EXPECT_TRUE(manager.trashPreset(userRoot, 0));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "b.qmpreset"}));
    EXPECT_EQ(namesIn(trash), Names{"a.qmpreset"});
    EXPECT_EQ(manager.presetName(idSelector, 1), "");
    EXPECT_EQ(manager.presetName(userRoot, 0), "b");
    EXPECT_FALSE(manager.trashPreset(userRoot, 1));
}

TEST_F(ManagerFileOperationsTest, aRecycleBinThatRefusesLeavesEverything) {
    desktop.trashWorks = false;
    EXPECT_FALSE(manager.trashPreset(userRoot, 0));
    EXPECT_FALSE(manager.trashFolder(0x20001));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "a.qmpreset", "b.qmpreset"}));
    EXPECT_EQ(manager.numPresets(), 4u);
}

TEST_F(ManagerFileOperationsTest, aTrashedFolderGoesWithEverythingInIt) {
    EXPECT_TRUE(manager.trashFolder(0x20001));
    EXPECT_EQ(namesIn(user), (Names{"a.qmpreset", "b.qmpreset"}));
    EXPECT_EQ(namesIn(trash / "Kicks"), Names{"k.qmpreset"});
    EXPECT_EQ(manager.numFolders(2), 1u);
    EXPECT_FALSE(manager.trashFolder(0x20001));
    EXPECT_FALSE(manager.trashFolder(idSelector));
}

TEST_F(ManagerFileOperationsTest, newFoldersAreMadeBelowTheUserRoot) {
    EXPECT_TRUE(manager.createFolder("New"));
    EXPECT_TRUE(fs::is_directory(user / "New"));
    EXPECT_EQ(manager.folderDisplayName(0x20002), "\t\tNew");
    EXPECT_FALSE(manager.createFolder("New"));
    EXPECT_FALSE(manager.createFolder("a.qmpreset"));
    EXPECT_TRUE(fs::is_regular_file(user / "a.qmpreset"));
}

TEST_F(ManagerFileOperationsTest, aMissingUserRootIsMadeWithTheFirstFolder) {
    fs::remove_all(user);
    manager.setFolders({utf8FromPath(factory), utf8FromPath(user / "deep" / "root")});
    manager.rescan();
    EXPECT_TRUE(manager.createFolder("New"));
    EXPECT_TRUE(fs::is_directory(user / "deep" / "root" / "New"));
}

TEST_F(ManagerFileOperationsTest, aUserRootThatIsAFileGetsNoFolder) {
    fs::remove_all(user);
    writeFile(user, "in the way");
    manager.rescan();
    EXPECT_FALSE(manager.createFolder("New"));
    EXPECT_FALSE(manager.savePresetAs(userRoot, "new", {}));
    EXPECT_EQ(readFile(user), "in the way");
}

TEST_F(ManagerFileOperationsTest, aRenamedFolderKeepsItsPresets) {
    EXPECT_TRUE(manager.renameFolder(0x20001, "Drums"));
    EXPECT_EQ(namesIn(user), (Names{"Drums", "a.qmpreset", "b.qmpreset"}));
    EXPECT_EQ(manager.presetName(0x20001, 0), "k");
    EXPECT_FALSE(manager.renameFolder(0x20002, "x"));
    EXPECT_FALSE(manager.renameFolder(idSelector, "x"));
}

TEST_F(ManagerFileOperationsTest, aFolderReplacesAnEmptyFolderOnly) {
    fs::create_directory(user / "Empty");
    writePreset(user / "Full" / "x.qmpreset", 9);
    manager.rescan(); // Empty, Full, Kicks
    EXPECT_FALSE(manager.renameFolder(0x20003, "Full"));
    EXPECT_FALSE(manager.renameFolder(0x20003, "a.qmpreset"));
    EXPECT_EQ(namesIn(user), (Names{"Empty", "Full", "Kicks", "a.qmpreset", "b.qmpreset"}));
    EXPECT_TRUE(manager.renameFolder(0x20003, "Empty"));
    EXPECT_EQ(namesIn(user), (Names{"Empty", "Full", "a.qmpreset", "b.qmpreset"}));
    EXPECT_EQ(namesIn(user / "Empty"), Names{"k.qmpreset"});
    EXPECT_TRUE(desktop.trashed.empty());
}

TEST_F(ManagerFileOperationsTest, aFolderThatVanishedCannotBeRenamed) {
    fs::remove_all(user / "Kicks");
    EXPECT_FALSE(manager.renameFolder(0x20001, "Drums"));
}

TEST_F(ManagerFileOperationsTest, factoryPresetsMayBeRenamedAndTrashedWhereTheSystemAllowsIt) {
    EXPECT_TRUE(manager.renamePreset(idSelector, 4, "g"));
    EXPECT_EQ(namesIn(factory / "Bass"), Names{"g.qmpreset"});
    EXPECT_TRUE(manager.trashPreset(idSelector, 4));
    EXPECT_TRUE(namesIn(factory / "Bass").empty());
}

TEST_F(ManagerFileOperationsTest, namesThatLeadOutOfTheFolderAreRefused) {
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("../x"),
          std::string("x/y"), std::string("/tmp/x"), std::string("..\\x"), std::string("x\\y"),
          std::string("x\0y", 3)}) {
        EXPECT_FALSE(manager.renamePreset(userRoot, 0, name)) << name;
        EXPECT_FALSE(manager.renameFolder(0x20001, name)) << name;
        EXPECT_FALSE(manager.createFolder(name)) << name;
        EXPECT_FALSE(manager.savePresetAs(userRoot, name, {})) << name;
    }
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "a.qmpreset", "b.qmpreset"}));
    EXPECT_EQ(namesIn(directory.path()), (Names{"factory", "user"}));
}

TEST_F(ManagerFileOperationsTest, namesThatAreTooLongAreRefused) {
    const std::string name(300, 'x');
    EXPECT_FALSE(manager.renamePreset(userRoot, 0, name));
    EXPECT_FALSE(manager.renameFolder(0x20001, name));
    EXPECT_FALSE(manager.createFolder(name));
    EXPECT_FALSE(manager.savePresetAs(userRoot, name, {}));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "a.qmpreset", "b.qmpreset"}));
}

#ifndef _WIN32

TEST_F(ManagerFileOperationsTest, aFolderThatMayNotBeChangedStaysAsItIs) {
    for (const fs::path& path : {user / "a.qmpreset", user / "b.qmpreset", user / "Kicks", user})
        giveToUnprivilegedChild(path);
    fs::permissions(user, fs::perms(0555));
    EXPECT_TRUE(inUnprivilegedChild([this] {
        return !manager.renamePreset(userRoot, 0, "new") && !manager.trashPreset(userRoot, 0) &&
               !manager.createFolder("New") && !manager.renameFolder(0x20001, "Drums") &&
               !manager.savePresetAs(userRoot, "new", {});
    }));
    EXPECT_EQ(namesIn(user), (Names{"Kicks", "a.qmpreset", "b.qmpreset"}));
    fs::permissions(user, fs::perms(0755));
}

#endif
