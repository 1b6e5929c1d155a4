// SPDX-License-Identifier: GPL-3.0-or-later
// Locators turned into folder and place as lists count them.
#include "presets/manager/tests/PresetTreeTest.h"

namespace {

/// Factory: "Init" and the folders "A" (1) and "B" (2) with presets. User: "own" and the folders
/// "C" (1) and "D" (2), which holds "E" (1).
class ManagerLocatorTest : public PresetTreeTest {
protected:
    void SetUp() override {
        PresetTreeTest::SetUp();
        writePreset(factory / "Init.qmpreset", 1);
        writePreset(factory / "A" / "a0.qmpreset", 2);
        writePreset(factory / "B" / "b0.qmpreset", 3);
        writePreset(factory / "B" / "b1.qmpreset", 4);
        writePreset(user / "own.qmpreset", 5);
        writePreset(user / "C" / "c0.qmpreset", 6);
        writePreset(user / "D" / "d0.qmpreset", 7);
        writePreset(user / "D" / "d1.qmpreset", 8);
        writePreset(user / "D" / "E" / "e0.qmpreset", 9);
        writePreset(user / "D" / "E" / "e1.qmpreset", 10);
        manager.rescan();
    }

    SettingLocator normalised(std::uint32_t number, std::uint32_t category) {
        return manager.normaliseLocator({idSelector, number, 1, 0}, category);
    }
};

struct Row {
    std::uint32_t number;
    std::uint32_t category;
    std::uint32_t folder;
    std::uint32_t place;
};

} // namespace

TEST_F(ManagerLocatorTest, identifiersBecomeFolderAndPlace) {
    // In category 0 the user root comes after three folders of the factory's: the root, A and B.
    // A category that does not show a tree counts the tree's presets into its first folder. A
    // nested folder adds up with those above it: E (1) in D (2) is 3.
    const std::vector<Row> rows = {
        {1, 0, 0, 0},  {1, 1, 0, 0},  {1, 2, 0, 0},  // Init
        {2, 0, 1, 0},  {2, 1, 1, 0},  {2, 2, 0, 0},  // a0
        {4, 0, 2, 1},  {4, 1, 2, 1},  {4, 2, 0, 1},  // b1
        {5, 0, 3, 0},  {5, 1, 0, 0},  {5, 2, 0, 0},  // own
        {6, 0, 4, 0},  {6, 1, 0, 0},  {6, 2, 1, 0},  // c0
        {8, 0, 5, 1},  {8, 1, 0, 1},  {8, 2, 2, 1},  // d1
        {10, 0, 6, 1}, {10, 1, 0, 1}, {10, 2, 3, 1}, // e1
        {6, 3, 1, 0},  {2, 3, 1, 0},                 // a category that does not exist
    };
    for (const Row& row : rows)
        EXPECT_EQ(normalised(row.number, row.category),
                  (SettingLocator{row.folder, row.place, 1, 0}))
            << "preset " << row.number << ", category " << row.category;
}

TEST_F(ManagerLocatorTest, inCategoryAllTheResultNamesThePresetItself) {
    for (std::uint32_t number = 1; number <= 8; ++number) {
        const SettingLocator locator = normalised(number, 0);
        EXPECT_EQ(manager.presetUniqueId(locator.folderSelector, locator.index), idOf(number));
    }
}

TEST_F(ManagerLocatorTest, selectorsOfFoldersAreTakenToo) {
    EXPECT_EQ(manager.normaliseLocator({0x20002, 1, 1, 0}, 0), (SettingLocator{5, 1, 1, 0}));
    EXPECT_EQ(manager.normaliseLocator({0x10002, 0, 1, 0}, 1), (SettingLocator{2, 0, 1, 0}));
}

TEST_F(ManagerLocatorTest, theOtherTwoWordsStay) {
    EXPECT_EQ(manager.normaliseLocator({idSelector, 6, 0, 7}, 2), (SettingLocator{1, 0, 0, 7}));
}

TEST_F(ManagerLocatorTest, aLocatorThatNamesNoPresetStays) {
    for (const SettingLocator& locator :
         {SettingLocator{idSelector, 99, 1, 0}, SettingLocator{0x20000, 5, 1, 0},
          SettingLocator{0x30000, 0, 0, 1}, SettingLocator{0xFFFFFFFFu, 0xFFFFFFFFu, 1, 0}})
        EXPECT_EQ(manager.normaliseLocator(locator, 0), locator);
}
