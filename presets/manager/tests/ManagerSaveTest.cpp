// SPDX-License-Identifier: GPL-3.0-or-later
// Saving: over a preset, under a new name, over a factory preset.
#include "presets/manager/QMGenericPresetFilter.h"
#include "presets/manager/tests/PresetTreeTest.h"
#include "presets/manager/tests/UnprivilegedChild.h"

#ifndef _WIN32
#    include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

class ManagerSaveTest : public PresetTreeTest {
protected:
    /// The bytes of record(name, value) with an identifier.
    static PresetBytes bytesOf(const std::string& name, double value, std::uint64_t id) {
        PresetBytes bytes = withId(id);
        bytes.name = name;
        bytes.values[0].second = value;
        return bytes;
    }
};

} // namespace

TEST_F(ManagerSaveTest, aUserPresetIsWrittenOverAndKeepsItsIdentifier) {
    writePreset(user / "a.qmpreset", 4);
    manager.rescan();
    QMGenericPreset changed = record("Sample", 120.0);
    changed.uniqueId = idOf(99);
    EXPECT_TRUE(manager.savePreset(userRoot, 0, changed));
    EXPECT_EQ(readFile(user / "a.qmpreset"), bytesOf("Sample", 120.0, idOf(4)).bytes());
    EXPECT_EQ(manager.presetUniqueId(userRoot, 0), idOf(4));
    EXPECT_EQ(manager.loadPreset(userRoot, 0)->values.at(code("afre")), 120.0);
    EXPECT_EQ(manager.presetName(idSelector, 99), "");
}

TEST_F(ManagerSaveTest, aRecordThatEndsInsideItsOldExtensionKeepsItsSound) {
    QMGenericPreset large = record("Sample", 100.0);
    large.uniqueId = idOf(4);
    large.extension = {{"text", std::string(60, 'x')}};
    manager.rescan();
    ASSERT_TRUE(manager.savePresetAs(userRoot, "a", large));
    const auto sizeBefore = fs::file_size(user / "a.qmpreset");
    ASSERT_TRUE(manager.savePreset(userRoot, 0, record("Sample", 120.0)));
    EXPECT_EQ(fs::file_size(user / "a.qmpreset"), sizeBefore) << "the old end stays";

    // What the old end announces cannot be decoded any more. The preset is there all the same.
    auto filter = std::make_unique<QMGenericPresetFilter>(code("QML "), code("BRLT"), code("****"));
    filter->setMatchAnyVariant(true);
    manager.setFilter(std::move(filter));
    manager.rescan();
    const QMGenericPreset* const read = manager.loadPreset(userRoot, 0);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->values.at(code("afre")), 120.0);
    EXPECT_EQ(read->uniqueId, idOf(4));
    EXPECT_TRUE(read->extension.is_null());
}

TEST_F(ManagerSaveTest, aPresetIsFoundByItsIdentifierForSavingToo) {
    writePreset(user / "Mine" / "a.qmpreset", 4);
    manager.rescan();
    EXPECT_TRUE(manager.savePreset(idSelector, 4, record("Sample", 99.0), 12345));
    EXPECT_EQ(readFile(user / "Mine" / "a.qmpreset"), bytesOf("Sample", 99.0, idOf(4)).bytes());
}

TEST_F(ManagerSaveTest, aShorterRecordKeepsTheOldEndAndIsReadWithIt) {
    PresetBytes old = withId(idOf(4));
    // Longer than the new one by more than extension, type, length and identifier: 4 + 4 + 4 + 8.
    old.name = "A name that is rather long";
    old.extension = std::string("\x81\xA1k\x07", 4); // {"k": 7}
    writeFile(user / "a.qmpreset", old.bytes());
    manager.rescan();

    QMGenericPreset shorter = record("S", 120.0);
    shorter.extension = {{"k", 8}};
    EXPECT_TRUE(manager.savePreset(userRoot, 0, shorter));
    PresetBytes written = bytesOf("S", 120.0, idOf(4));
    written.extension = std::string("\x81\xA1k\x08", 4);
    EXPECT_EQ(readFile(user / "a.qmpreset"),
              written.bytes() + old.bytes().substr(written.bytes().size()));
    const QMGenericPreset* const read = manager.loadPreset(userRoot, 0);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->name, "S");
    EXPECT_EQ(read->values.at(code("afre")), 120.0);
    EXPECT_EQ(read->extension, nlohmann::json({{"k", 7}}));
    EXPECT_EQ(read->uniqueId, idOf(4));
}

TEST_F(ManagerSaveTest, aRecordThatLostItsExtensionIsFollowedByTheEndOfTheOldOne) {
    PresetBytes old = withId(idOf(4));
    old.extension = "\xB4" + std::string(20, 'x'); // a text of twenty characters
    writeFile(user / "a.qmpreset", old.bytes());
    manager.rescan();
    EXPECT_TRUE(manager.savePreset(userRoot, 0, record("Sample", 120.0)));
    const std::string written = bytesOf("Sample", 120.0, idOf(4)).bytes();
    EXPECT_EQ(readFile(user / "a.qmpreset"), written + old.bytes().substr(written.size()));
    EXPECT_EQ(idAtEndOf(user / "a.qmpreset"), idOf(4));
}

TEST_F(ManagerSaveTest, aFactoryPresetIsCopiedIntoTheUserRoot) {
    writePreset(factory / "Kicks" / "808.qmpreset", 4);
    manager.rescan();
    const std::string before = readFile(factory / "Kicks" / "808.qmpreset");
    QMGenericPreset changed = record("Sample", 120.0);
    changed.uniqueId = idOf(50);
    EXPECT_TRUE(manager.savePreset(idSelector, 4, changed));
    EXPECT_EQ(readFile(factory / "Kicks" / "808.qmpreset"), before);
    EXPECT_EQ(readFile(user / "808 copy.qmpreset"), bytesOf("Sample", 120.0, idOf(50)).bytes());
    EXPECT_EQ(manager.presetName(userRoot, 0), "808 copy");
    EXPECT_EQ(manager.presetName(idSelector, 4), "808");
}

TEST_F(ManagerSaveTest, theCopyOfAFactoryPresetWithItsIdentifierIsTheOneThatIsFound) {
    writePreset(factory / "808.qmpreset", 4);
    manager.rescan();
    QMGenericPreset changed = record("Sample", 120.0);
    changed.uniqueId = idOf(4);
    EXPECT_TRUE(manager.savePreset(factoryRoot, 0, changed));
    EXPECT_EQ(manager.presetName(idSelector, 4), "808 copy");
}

TEST_F(ManagerSaveTest, savingAsMakesTheFolderAndTheFile) {
    manager.rescan();
    ASSERT_FALSE(fs::exists(user));
    QMGenericPreset preset = record("inside", 50.0);
    preset.uniqueId = idOf(7);
    EXPECT_TRUE(manager.savePresetAs(userRoot, "New One", preset));
    EXPECT_EQ(readFile(user / "New One.qmpreset"), bytesOf("inside", 50.0, idOf(7)).bytes());
    EXPECT_EQ(manager.presetName(idSelector, 7), "New One");
    EXPECT_EQ(namesIn(user), Names{"New One.qmpreset"});
}

TEST_F(ManagerSaveTest, savingAsWithoutAnIdentifierGetsOneFromTheScan) {
    manager.rescan();
    EXPECT_TRUE(manager.savePresetAs(userRoot, "New", record("x", 50.0)));
    EXPECT_NE(manager.presetUniqueId(userRoot, 0), 0u);
    EXPECT_EQ(idAtEndOf(user / "New.qmpreset"), manager.presetUniqueId(userRoot, 0));
}

TEST_F(ManagerSaveTest, savingAsPutsThePresetIntoTheChosenFolder) {
    writePreset(user / "Kicks" / "a.qmpreset", 1);
    writePreset(factory / "Bass" / "b.qmpreset", 2);
    manager.rescan();
    EXPECT_TRUE(manager.savePresetAs(0x20001, "in kicks", record("x", 1.0)));
    EXPECT_TRUE(fs::exists(user / "Kicks" / "in kicks.qmpreset"));
    EXPECT_TRUE(manager.savePresetAs(0x00001, "in bass", record("x", 1.0)));
    EXPECT_TRUE(fs::exists(factory / "Bass" / "in bass.qmpreset"));
}

TEST_F(ManagerSaveTest, savingAsOverAnExistingFileWritesOverItsBeginning) {
    PresetBytes old = withId(idOf(4));
    old.name = "A rather long name";
    writeFile(user / "a.qmpreset", old.bytes());
    manager.rescan();
    QMGenericPreset preset = record("S", 1.0);
    preset.uniqueId = idOf(5);
    EXPECT_TRUE(manager.savePresetAs(userRoot, "a", preset));
    const std::string written = bytesOf("S", 1.0, idOf(5)).bytes();
    EXPECT_EQ(readFile(user / "a.qmpreset"), written + old.bytes().substr(written.size()));
    EXPECT_EQ(manager.numPresets(), 1u);
    EXPECT_EQ(manager.presetUniqueId(userRoot, 0), idOf(4));
}

TEST_F(ManagerSaveTest, whatNamesNoFolderOrNoPresetIsRefused) {
    writePreset(user / "a.qmpreset", 4);
    manager.rescan();
    for (const std::uint32_t selector : {0x20001u, 0x30000u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_FALSE(manager.savePresetAs(selector, "new", record("x", 1.0))) << selector;
    EXPECT_FALSE(manager.savePreset(userRoot, 1, record("x", 1.0)));
    EXPECT_FALSE(manager.savePreset(idSelector, 9, record("x", 1.0)));
    EXPECT_EQ(namesIn(user), Names{"a.qmpreset"});
    EXPECT_EQ(namesIn(directory.path()), Names{"user"});
}

TEST_F(ManagerSaveTest, aPresetThatVanishedIsWrittenAgain) {
    writePreset(user / "a.qmpreset", 4);
    manager.rescan();
    fs::remove(user / "a.qmpreset");
    EXPECT_TRUE(manager.savePreset(userRoot, 0, record("Sample", 120.0)));
    EXPECT_EQ(readFile(user / "a.qmpreset"), bytesOf("Sample", 120.0, idOf(4)).bytes());
}

TEST_F(ManagerSaveTest, aSaveThatFailsLeavesFileItemAndTreeAsTheyWere) {
    writePreset(user / "a.qmpreset", 4);
    manager.rescan();
    const QMPresetItem* const item = manager.presetAtPosition(0);
    fs::permissions(user / "a.qmpreset", fs::perms::owner_read);
    EXPECT_FALSE(manager.savePreset(userRoot, 0, record("Sample", 120.0)));
    EXPECT_FALSE(manager.savePresetAs(userRoot, "a", record("Sample", 120.0)));
    EXPECT_EQ(readFile(user / "a.qmpreset"), withId(idOf(4)).bytes());
    EXPECT_EQ(manager.presetAtPosition(0), item);
    EXPECT_EQ(manager.loadPreset(userRoot, 0)->values.at(code("afre")), 80.0);
    fs::permissions(user / "a.qmpreset", fs::perms::owner_all);
}

#ifndef _WIN32

TEST_F(ManagerSaveTest, aFullDiskLeavesTheOldPreset) {
    writePreset(user / "a.qmpreset", 4);
    EXPECT_TRUE(inChildWithFullDisk(20, [this] {
        manager.rescan();
        return !manager.savePreset(userRoot, 0, record("Sample", 120.0)) &&
               !manager.savePresetAs(userRoot, "b", record("Sample", 120.0));
    }));
    EXPECT_EQ(readFile(user / "a.qmpreset"), withId(idOf(4)).bytes());
    EXPECT_EQ(namesIn(user), Names{"a.qmpreset"});
}

TEST_F(ManagerSaveTest, aUserFolderThatCannotBeMadeIsRefused) {
    giveToUnprivilegedChild(directory.path());
    fs::permissions(directory.path(), fs::perms(0555));
    EXPECT_TRUE(inUnprivilegedChild([this] {
        manager.rescan();
        return !manager.savePresetAs(userRoot, "a", record("x", 1.0)) &&
               !manager.createFolder("Kicks");
    }));
    fs::permissions(directory.path(), fs::perms(0755));
    EXPECT_TRUE(namesIn(directory.path()).empty());
}

#endif
