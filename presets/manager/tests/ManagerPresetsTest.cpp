// SPDX-License-Identifier: GPL-3.0-or-later
// Presets by selector, by identifier, by place in the list of all and by path.
#include "presets/manager/tests/ListedEntries.h"
#include "presets/manager/tests/PresetTreeTest.h"

namespace {

class ManagerPresetsTest : public PresetTreeTest {
protected:
    void SetUp() override {
        PresetTreeTest::SetUp();
        writePreset(factory / "Init.qmpreset", 1);
        writePreset(user / "Mine" / "m.qmpreset", 2);
        writePreset(user / "Mine" / "n.qmpreset", 3);
        writePreset(user / "a.qmpreset", 4);
        writePreset(user / "z.qmpreset", 5);
        manager.rescan();
    }
};

} // namespace

TEST_F(ManagerPresetsTest, aPlaceInAFolderCountsPresetsAndSkipsFolders) {
    // In order of names: "Mine" (a folder), "a", "z".
    EXPECT_EQ(manager.presetName(userRoot, 0), "a");
    EXPECT_EQ(manager.presetName(userRoot, 1), "z");
    EXPECT_EQ(manager.presetName(userRoot, 2), "");
    EXPECT_EQ(manager.presetName(0x20001, 1), "n");
    EXPECT_EQ(manager.presetName(0x00000, 0), "Init");
    EXPECT_EQ(manager.presetName(0x00001, 0), "a");
    EXPECT_EQ(manager.presetName(0x00002, 0), "m");
    EXPECT_EQ(manager.presetName(0x20009, 0), "");
    EXPECT_EQ(manager.presetName(0x30000, 0), "");
}

TEST_F(ManagerPresetsTest, identifiersAndRecordsComeFromTheSamePreset) {
    EXPECT_EQ(manager.presetUniqueId(0x20001, 0), idOf(2));
    EXPECT_EQ(manager.presetUniqueId(userRoot, 7), 0u);
    const QMGenericPreset* const record = manager.loadPreset(0x20001, 0);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->uniqueId, idOf(2));
    EXPECT_EQ(record->values.at(code("afre")), 80.0);
    EXPECT_EQ(manager.loadPreset(0x20001, 0), record);
    EXPECT_EQ(manager.loadPreset(userRoot, 7), nullptr);
}

TEST_F(ManagerPresetsTest, aNegativeSelectorIsTheHighHalfOfAnIdentifier) {
    EXPECT_EQ(manager.presetName(idSelector, 3), "n");
    EXPECT_EQ(manager.presetUniqueId(idSelector, 3), idOf(3));
    ASSERT_NE(manager.loadPreset(idSelector, 3), nullptr);
    EXPECT_EQ(manager.loadPreset(idSelector, 3)->uniqueId, idOf(3));
}

TEST_F(ManagerPresetsTest, anUnknownIdentifierHasNoNameAndDoesNothing) {
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(manager.presetName(0xFFFFFFFFu, 0xFFFFFFFFu), "");
        EXPECT_EQ(manager.presetUniqueId(0xFFFFFFFFu, 0xFFFFFFFFu), 0u);
        EXPECT_EQ(manager.loadPreset(0xFFFFFFFFu, 0xFFFFFFFFu), nullptr);
        EXPECT_FALSE(manager.trashPreset(0xFFFFFFFFu, 0xFFFFFFFFu));
        EXPECT_FALSE(manager.renamePreset(0xFFFFFFFFu, 0xFFFFFFFFu, "new"));
        EXPECT_FALSE(manager.savePreset(0xFFFFFFFFu, 0xFFFFFFFFu, {}));
        manager.revealPreset(0xFFFFFFFFu, 0xFFFFFFFFu);
    }
    EXPECT_TRUE(desktop.trashed.empty());
    EXPECT_TRUE(desktop.revealed.empty());
    EXPECT_EQ(namesIn(user), (Names{"Mine", "a.qmpreset", "z.qmpreset"}));
    EXPECT_EQ(manager.numPresets(), 5u);
}

TEST_F(ManagerPresetsTest, revealingShowsTheFile) {
    manager.revealPreset(userRoot, 1);
    manager.revealPreset(idSelector, 2);
    manager.revealPreset(userRoot, 2);
    const std::string root = utf8FromPath(user);
    EXPECT_EQ(desktop.revealed,
              (std::vector<std::string>{root + "/z.qmpreset", root + "/Mine/m.qmpreset"}));
}

TEST_F(ManagerPresetsTest, positionsAreThoseOfTheSortedList) {
    // "Factory > …", "User > Mine > m", "… > n", "User > User Presets > a", "… > z".
    EXPECT_EQ(listedNames(), (Names{"Init", "m", "n", "a", "z"}));
    ASSERT_NE(manager.recordAtPosition(2), nullptr);
    EXPECT_EQ(manager.recordAtPosition(2)->uniqueId, idOf(3));
    EXPECT_EQ(manager.recordAtPosition(5), nullptr);
    EXPECT_EQ(manager.presetAtPosition(static_cast<std::size_t>(-1)), nullptr);
}

TEST_F(ManagerPresetsTest, thePositionOfAPathIsThatOfTheScan) {
    const std::string root = utf8FromPath(user);
    writePreset(user / "folder" / "b.qmpreset", 6);
    QMGenericPresetManager listed(ListedDirectoryIterator::factory(
        {{root, {{"z.qmpreset", false}, {"a.qmpreset", false}, {"folder", true}}},
         {root + "/folder", {{"b.qmpreset", false}}}}));
    prepare(listed);
    listed.rescan();
    EXPECT_EQ(listed.positionOfPath(root + "/z.qmpreset"), 0);
    EXPECT_EQ(listed.positionOfPath(root + "/a.qmpreset"), 1);
    EXPECT_EQ(listed.positionOfPath(root + "/folder/b.qmpreset"), 2);
    EXPECT_EQ(listed.positionOfPath(root + "/folder"), -1);
    EXPECT_EQ(listed.positionOfPath(root + "/b.qmpreset"), -1);
    EXPECT_EQ(listed.positionOfPath("z.qmpreset"), -1);
    EXPECT_EQ(listed.positionOfPath(""), -1);
    // In the sorted list it is another one.
    EXPECT_EQ(listed.presetAtPosition(0)->displayName(), "b");
}

TEST_F(ManagerPresetsTest, theFactoryTreeIsSearchedFirst) {
    writePreset(factory / "twice.qmpreset", 6);
    manager.setFolders({utf8FromPath(factory), utf8FromPath(factory)});
    manager.rescan();
    const std::int32_t found = manager.positionOfPath(utf8FromPath(factory) + "/twice.qmpreset");
    ASSERT_GE(found, 0);
    EXPECT_LT(found, 2);
}
