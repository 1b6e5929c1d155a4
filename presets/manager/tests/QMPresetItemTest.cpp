// SPDX-License-Identifier: GPL-3.0-or-later
// One preset file as an item: its texts, its path, its record.
#include "presets/manager/QMPresetItem.h"

#include "presets/manager/QMPresetFolder.h"
#include "presets/manager/tests/PresetBytes.h"
#include "presets/record/Utf8Path.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

class QMPresetItemTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    QMPresetFolder root{
        {.displayName = "User Presets", .fileName = utf8FromPath(directory.path())}};
    QMPresetItem item{
        {.displayName = "Kick", .fileName = "Kick.qmpreset", .parent = &root, .creationIndex = 7}};
    std::filesystem::path file = directory / "Kick.qmpreset";
};

} // namespace

TEST_F(QMPresetItemTest, isNoFolderAndHasNoChildren) {
    EXPECT_FALSE(item.isFolder());
    EXPECT_EQ(item.numChildren(), 0u);
    EXPECT_EQ(item.numSubFolders(), 0u);
    EXPECT_EQ(item.childAt(0), nullptr);
    EXPECT_EQ(item.presetAt(0), nullptr);
}

TEST_F(QMPresetItemTest, tellsWhatItWasMadeFrom) {
    EXPECT_EQ(item.displayName(), "Kick");
    EXPECT_EQ(item.fileName(), "Kick.qmpreset");
    EXPECT_EQ(item.parent(), &root);
    EXPECT_EQ(item.creationIndex(), 7u);
    EXPECT_TRUE(item.isUser());
    EXPECT_FALSE(item.isFactory());
    const QMPresetItem installed({.isFactory = true});
    EXPECT_FALSE(installed.isUser());
    EXPECT_TRUE(installed.isFactory());
}

TEST_F(QMPresetItemTest, positionsAreZeroUntilTheyAreSet) {
    EXPECT_EQ(item.globalPosition(), 0u);
    EXPECT_EQ(item.positionInFolder(), 0u);
    item.setGlobalPosition(4);
    item.setPositionInFolder(5);
    EXPECT_EQ(item.globalPosition(), 4u);
    EXPECT_EQ(item.positionInFolder(), 5u);
}

TEST_F(QMPresetItemTest, aPathIsTheParentsPathASlashAndTheFileName) {
    EXPECT_EQ(item.path(), root.fileName() + "/Kick.qmpreset");
    EXPECT_EQ(root.path(), root.fileName());
}

TEST_F(QMPresetItemTest, aBreadcrumbNamesTreeFolderAndPreset) {
    EXPECT_EQ(item.breadcrumb(), "User > User Presets > Kick");
    EXPECT_EQ(root.breadcrumb(), "User > User Presets");
    const QMPresetItem installed({.displayName = "Deep", .isFactory = true});
    EXPECT_EQ(installed.breadcrumb(), "Factory > Deep");
}

TEST_F(QMPresetItemTest, aNewDisplayNameLeavesTheBreadcrumbAndTheFileName) {
    item.setDisplayName("Snare");
    EXPECT_EQ(item.displayName(), "Snare");
    EXPECT_EQ(item.breadcrumb(), "User > User Presets > Kick");
    EXPECT_EQ(item.fileName(), "Kick.qmpreset");
}

TEST_F(QMPresetItemTest, isFoundByItsFileNameByteForByteOnly) {
    EXPECT_EQ(item.findByFileName("Kick.qmpreset"), &item);
    for (const char* other : {"kick.qmpreset", "Kick", "Kick.qmpreset ", "", "x/Kick.qmpreset"})
        EXPECT_EQ(item.findByFileName(other), nullptr) << other;
}

TEST_F(QMPresetItemTest, theRecordIsReadOnFirstUseAndKept) {
    writeFile(file, withId(0x8000000000000042u).bytes());
    const QMGenericPreset* const record = item.record();
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->name, "Sample");
    EXPECT_EQ(record->values.at(code("afre")), 80.0);
    EXPECT_EQ(item.uniqueId(), 0x8000000000000042u);
    EXPECT_TRUE(item.hasSoundRecord());

    writeFile(file, withId(0x8000000000000043u).bytes());
    EXPECT_EQ(item.record(), record);
    EXPECT_EQ(item.uniqueId(), 0x8000000000000042u);
}

TEST_F(QMPresetItemTest, aFileThatCannotBeOpenedGivesNoRecordAndNoIdentifier) {
    EXPECT_EQ(item.record(), nullptr);
    EXPECT_EQ(item.uniqueId(), 0u);
    EXPECT_FALSE(item.hasSoundRecord());
}

TEST_F(QMPresetItemTest, aFileThatAppearsLaterIsReadThen) {
    EXPECT_EQ(item.record(), nullptr);
    writeFile(file, PresetBytes().bytes());
    EXPECT_NE(item.record(), nullptr);
}

TEST_F(QMPresetItemTest, aFileWhoseHeaderDoesNotReadGivesAnEmptyRecord) {
    writeFile(file, "a text file that somebody left here");
    const QMGenericPreset* const record = item.record();
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->name, "");
    EXPECT_EQ(record->manufacturerCode, 0u);
    EXPECT_TRUE(record->values.empty());
    EXPECT_TRUE(record->extension.is_null());
    EXPECT_EQ(item.uniqueId(), 0u);
    EXPECT_FALSE(item.hasSoundRecord());
}

TEST_F(QMPresetItemTest, aRecordWithoutValuesIsSound) {
    PresetBytes preset;
    preset.values.clear();
    writeFile(file, preset.bytes());
    ASSERT_NE(item.record(), nullptr);
    EXPECT_TRUE(item.record()->values.empty());
    EXPECT_EQ(item.record()->name, "Sample");
    EXPECT_TRUE(item.hasSoundRecord());
}

TEST_F(QMPresetItemTest, aRecordThatIsSetReplacesTheOneThatWasRead) {
    writeFile(file, PresetBytes().bytes());
    static_cast<void>(item.record());
    auto other = std::make_unique<QMGenericPreset>();
    other->name = "Other";
    other->uniqueId = 9;
    const QMGenericPreset* const given = other.get();
    item.setRecord(std::move(other));
    EXPECT_EQ(item.record(), given);
    EXPECT_EQ(item.uniqueId(), 9u);
}

TEST_F(QMPresetItemTest, theRecordThatIsHeldMayBeSetAgain) {
    writeFile(file, PresetBytes().bytes());
    QMGenericPreset* const held = item.record();
    item.setRecord(std::unique_ptr<QMGenericPreset>(held));
    EXPECT_EQ(item.record(), held);
    EXPECT_EQ(held->name, "Sample");
}
