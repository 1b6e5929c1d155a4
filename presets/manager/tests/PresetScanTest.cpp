// SPDX-License-Identifier: GPL-3.0-or-later
// What a scan lists, under which names, in which order and with which numbers.
#include "presets/manager/tests/ListedEntries.h"
#include "presets/manager/tests/PresetTreeTest.h"

namespace {

class PresetScanTest : public PresetTreeTest {};

} // namespace

TEST_F(PresetScanTest, missingFoldersGiveEmptyRoots) {
    manager.rescan();
    for (const std::size_t i : {0u, 1u}) {
        ASSERT_NE(manager.root(i), nullptr);
        EXPECT_EQ(manager.root(i)->numChildren(), 0u);
    }
    EXPECT_EQ(manager.numPresets(), 0u);
    EXPECT_FALSE(std::filesystem::exists(factory));
    EXPECT_FALSE(std::filesystem::exists(user));
}

TEST_F(PresetScanTest, theRootsHaveTheirNamesPathsAndKinds) {
    manager.rescan();
    EXPECT_EQ(manager.root(0)->displayName(), "Factory Presets");
    EXPECT_EQ(manager.root(0)->fileName(), utf8FromPath(factory));
    EXPECT_EQ(manager.root(0)->path(), utf8FromPath(factory));
    EXPECT_TRUE(manager.root(0)->isFactory());
    EXPECT_EQ(manager.root(0)->breadcrumb(), "Factory > Factory Presets");
    EXPECT_EQ(manager.root(1)->displayName(), "User Presets");
    EXPECT_EQ(manager.root(1)->path(), utf8FromPath(user));
    EXPECT_TRUE(manager.root(1)->isUser());
    EXPECT_EQ(manager.root(1)->creationIndex(), 0u);
    EXPECT_EQ(manager.root(1)->positionInFolder(), 0u);
    EXPECT_EQ(manager.root(1)->parent(), nullptr);
    EXPECT_EQ(manager.root(2), nullptr);
}

TEST_F(PresetScanTest, thereAreNoRootsBeforeTheFirstScan) {
    EXPECT_EQ(manager.root(0), nullptr);
    EXPECT_EQ(manager.root(1), nullptr);
    EXPECT_EQ(manager.numPresets(), 0u);
}

TEST_F(PresetScanTest, aFurtherSuffixIsCutWithTheExtension) {
    writePreset(user / "Kick.qmpreset.old", 1);
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"Kick"});
    EXPECT_EQ(manager.root(1)->presetAt(0)->fileName(), "Kick.qmpreset.old");
}

TEST_F(PresetScanTest, aFileWithoutTheExtensionThatPassesTheFilterHasItsWholeName) {
    acceptEverySoundHeader();
    writePreset(user / "Kick.settings", 1);
    writeFile(user / "notes.txt", "not a preset");
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"Kick.settings"});
}

TEST_F(PresetScanTest, withoutAFilterEveryFileIsListed) {
    writePreset(user / "Kick.qmpreset", 1);
    writeFile(user / "notes.txt", "not a preset");
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"Kick", "notes.txt"}));
}

TEST_F(PresetScanTest, theFilterSeesThePathOfEachFileAndOfNoFolder) {
    class Recorder : public QMGenericPresetManager::Filter {
    public:
        explicit Recorder(std::vector<std::string>& paths)
            : seen(paths) {}

        bool accept(const std::string& path) override {
            seen.push_back(path);
            return false;
        }

    private:
        std::vector<std::string>& seen;
    };

    writePreset(user / "Kicks" / "a.qmpreset", 1);
    std::vector<std::string> seen;
    manager.setFilter(std::make_unique<Recorder>(seen));
    manager.rescan();
    EXPECT_EQ(seen, (std::vector<std::string>{manager.root(1)->path() + "/Kicks/a.qmpreset"}));
    EXPECT_EQ(manager.numPresets(), 0u);
    EXPECT_EQ(manager.root(1)->numSubFolders(), 1u);
}

TEST_F(PresetScanTest, leftoversOfAKilledProcessAreNoPresets) {
    writePreset(user / ".qm-0123456789abcdef.tmp", 1);
    writePreset(user / ".qm-0123456789abcdef.tmp.qmpreset", 2);
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{".qm-0123456789abcdef.tmp"});
    EXPECT_EQ(manager.presetAtPosition(0)->uniqueId(), idOf(2));
}

TEST_F(PresetScanTest, hiddenFilesAndFoldersAreListed) {
    writePreset(user / ".hidden.qmpreset", 1);
    writePreset(user / ".folder" / "a.qmpreset", 2);
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"a", ".hidden"}));
}

TEST_F(PresetScanTest, breadcrumbsNameTheTreeTheFolderAndThePreset) {
    writePreset(factory / "Init.qmpreset", 1);
    writePreset(user / "Kicks" / "808.qmpreset", 2);
    writePreset(user / "Kicks" / "Deep" / "909.qmpreset", 3);
    manager.rescan();
    EXPECT_EQ(breadcrumbs(), (Names{"Factory > Factory Presets > Init", "User > Deep > 909",
                                    "User > Kicks > 808"}));
    EXPECT_EQ(manager.root(1)->subFolderAt(0)->breadcrumb(), "User > Kicks");
}

TEST_F(PresetScanTest, theListOfAllPresetsIsSortedAndNumberedFromZero) {
    writePreset(user / "b.qmpreset", 1);
    writePreset(user / "A.qmpreset", 2);
    writePreset(user / "a folder" / "Z.qmpreset", 3);
    writePreset(factory / "z.qmpreset", 4);
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"z", "Z", "A", "b"}));
    for (std::size_t i = 0; i < manager.numPresets(); ++i)
        EXPECT_EQ(manager.presetAtPosition(i)->globalPosition(), i);
    EXPECT_EQ(manager.presetAtPosition(4), nullptr);
}

TEST_F(PresetScanTest, creationIndicesCountPresetsInTheOrderOfTheListingFromOne) {
    const std::string root = utf8FromPath(user);
    QMGenericPresetManager listed(ListedDirectoryIterator::factory(
        {{root, {{"c.qmpreset", false}, {"folder", true}, {"a.qmpreset", false}}},
         {root + "/folder", {{"b.qmpreset", false}}}}));
    prepare(listed);
    listed.rescan();
    // c, then the folder's b, then a; sorted: "User > folder > b", "User > User Presets > a", c.
    ASSERT_EQ(listed.numPresets(), 3u);
    EXPECT_EQ(listed.presetAtPosition(0)->creationIndex(), 2u);
    EXPECT_EQ(listed.presetAtPosition(1)->creationIndex(), 3u);
    EXPECT_EQ(listed.presetAtPosition(2)->creationIndex(), 1u);
    EXPECT_EQ(listed.root(1)->subFolderAt(0)->creationIndex(), 0u);
}

TEST_F(PresetScanTest, childrenAreSortedByBytesAndNumberedByKind) {
    for (const char* name : {"b", "B", "a"})
        writePreset(user / (std::string(name) + (name[0] == 'B' ? "2" : "") + ".qmpreset"), 1);
    for (const char* name : {"c", "A"})
        std::filesystem::create_directory(user / name);
    manager.rescan();
    const QMPresetFolder& root = *manager.root(1);
    Names names;
    std::vector<std::uint32_t> positions;
    for (std::size_t i = 0; i < root.numChildren(); ++i) {
        names.push_back(root.childAt(i)->displayName());
        positions.push_back(root.childAt(i)->positionInFolder());
    }
    EXPECT_EQ(names, (Names{"A", "B2", "a", "b", "c"}));
    EXPECT_EQ(positions, (std::vector<std::uint32_t>{1, 0, 1, 2, 2}));
}

TEST_F(PresetScanTest, foldersBelowTheFirstLevelAreScanned) {
    writePreset(user / "a" / "b" / "c" / "deep.qmpreset", 1);
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"deep"});
    EXPECT_EQ(manager.presetAtPosition(0)->path(),
              manager.root(1)->path() + "/a/b/c/deep.qmpreset");
}

TEST_F(PresetScanTest, aSecondScanForgetsWhatTheFirstOneFound) {
    writePreset(user / "a.qmpreset", 1);
    manager.rescan();
    std::filesystem::remove(user / "a.qmpreset");
    writePreset(user / "b.qmpreset", 2);
    manager.refresh();
    EXPECT_EQ(listedNames(), Names{"b"});
    EXPECT_EQ(manager.presetName(idSelector, 1), "");
    EXPECT_EQ(manager.presetName(idSelector, 2), "b");
}

TEST_F(PresetScanTest, relativeRootsStartFromTheCurrentDirectory) {
    writePreset(user / "a.qmpreset", 1);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    manager.setFolders({"factory", "user"});
    std::filesystem::current_path(before);
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"a"});
}
