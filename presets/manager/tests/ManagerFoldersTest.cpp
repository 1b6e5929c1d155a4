// SPDX-License-Identifier: GPL-3.0-or-later
// Folders by selector: how many, their names, what is in them; categories.
#include "presets/manager/tests/PresetTreeTest.h"

namespace {

/// Factory: two folders and a preset. User: one folder with a folder in it, and three presets.
class ManagerFoldersTest : public PresetTreeTest {
protected:
    void SetUp() override {
        PresetTreeTest::SetUp();
        writePreset(factory / "Init.qmpreset", 1);
        writePreset(factory / "Bass" / "b.qmpreset", 2);
        std::filesystem::create_directories(factory / "Kick");
        writePreset(user / "Mine" / "m.qmpreset", 3);
        writePreset(user / "Mine" / "Deep" / "d.qmpreset", 4);
        for (const char* name : {"x", "y", "z"})
            writePreset(user / (std::string(name) + ".qmpreset"), 5);
        manager.rescan();
    }
};

} // namespace

TEST_F(ManagerFoldersTest, thereAreThreeCategories) {
    EXPECT_EQ(manager.numCategories(), 3u);
    EXPECT_EQ(manager.categoryName(0), "All");
    EXPECT_EQ(manager.categoryName(1), "Factory");
    EXPECT_EQ(manager.categoryName(2), "User");
    EXPECT_EQ(manager.categoryName(3), "");
    EXPECT_EQ(manager.categoryName(0xFFFFFFFFu), "");
}

TEST_F(ManagerFoldersTest, aCategoryCountsItsRootsAndTheFoldersDirectlyBelow) {
    EXPECT_EQ(manager.numFolders(0), 5u);
    EXPECT_EQ(manager.numFolders(1), 3u);
    EXPECT_EQ(manager.numFolders(2), 2u);
    EXPECT_EQ(manager.numFolders(3), 0u);
    EXPECT_EQ(manager.numFolders(0xFFFFFFFFu), 0u);
}

TEST_F(ManagerFoldersTest, displayNamesStandBehindOneTabulatorForEachLevel) {
    const std::vector<std::pair<std::uint32_t, std::string>> expected = {
        {0x00000, "\tFactory Presets"},
        {0x00001, "\t\tBass"},
        {0x00002, "\t\tKick"},
        {0x00003, "\tUser Presets"},
        {0x00004, "\t\tMine"},
        {0x00005, ""},
        {0x10000, "\tFactory Presets"},
        {0x10001, "\t\tBass"},
        {0x10002, "\t\tKick"},
        {0x10003, ""},
        {0x20000, "\tUser Presets"},
        {0x20001, "\t\tMine"},
        {0x20002, ""},
        {0x30000, ""},
        {0x0FFFF, ""},
        {0x7FFFFFFF, ""},
        {0x80000000u, ""},
        {0xFFFFFFFFu, ""}};
    for (const auto& [selector, name] : expected)
        EXPECT_EQ(manager.folderDisplayName(selector), name) << std::hex << selector;
}

TEST_F(ManagerFoldersTest, aFolderWithoutADisplayNameIsCalledAfterItsTree) {
    manager.root(0)->setDisplayName("");
    manager.root(1)->setDisplayName("");
    manager.root(1)->subFolderAt(0)->setDisplayName("");
    EXPECT_EQ(manager.folderDisplayName(0x00000), "Factory");
    EXPECT_EQ(manager.folderDisplayName(0x10000), "Factory");
    EXPECT_EQ(manager.folderDisplayName(0x20000), "User");
    EXPECT_EQ(manager.folderDisplayName(0x00003), "User");
    EXPECT_EQ(manager.folderDisplayName(0x20001), "User");
}

TEST_F(ManagerFoldersTest, entriesAreCountedWithTheFoldersAmongThem) {
    EXPECT_EQ(manager.numEntries(0x00000), 3u);
    EXPECT_EQ(manager.numEntries(0x10001), 1u);
    EXPECT_EQ(manager.numEntries(0x10002), 0u);
    EXPECT_EQ(manager.numEntries(0x20000), 4u);
    EXPECT_EQ(manager.numEntries(0x00004), 2u);
    EXPECT_EQ(manager.numEntries(0x20002), 0u);
    EXPECT_EQ(manager.numEntries(0x80000000u), 0u);
}

TEST_F(ManagerFoldersTest, presetsBelowTheFirstLevelAreListedButNoSelectorReachesTheirFolder) {
    EXPECT_EQ(manager.numPresets(), 7u);
    EXPECT_EQ(manager.presetName(idSelector, 4), "d");
    for (std::uint32_t category = 0; category < 3; ++category)
        for (std::uint32_t folder = 0; folder < 10; ++folder)
            for (std::uint32_t index = 0; index < 10; ++index)
                EXPECT_NE(manager.presetName(category << 16 | folder, index), "d");
}

TEST_F(ManagerFoldersTest, beforeTheFirstScanThereIsNothing) {
    QMGenericPresetManager fresh(PortableDirectoryIterator::factory());
    EXPECT_EQ(fresh.numFolders(0), 0u);
    EXPECT_EQ(fresh.numFolders(1), 0u);
    EXPECT_EQ(fresh.folderDisplayName(0), "");
    EXPECT_EQ(fresh.numEntries(0), 0u);
    EXPECT_EQ(fresh.presetName(0, 0), "");
    EXPECT_EQ(fresh.positionOfPath("/"), -1);
    EXPECT_FALSE(fresh.createFolder("a"));
    EXPECT_FALSE(fresh.savePresetAs(0, "a", {}));
}
