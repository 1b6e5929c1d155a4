// SPDX-License-Identifier: GPL-3.0-or-later
// What else may lie in a folder: links in circles, pipes, folders nobody may read, files that go
// while they are listed.
#include "presets/manager/tests/ListedEntries.h"
#include "presets/manager/tests/PresetTreeTest.h"
#include "presets/manager/tests/UnprivilegedChild.h"

#ifndef _WIN32
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

class PresetScanLinksTest : public PresetTreeTest {};

} // namespace

TEST_F(PresetScanLinksTest, entriesThatVanishDuringTheScanAreListedWithoutARecord) {
    const std::string root = utf8FromPath(user);
    writePreset(user / "stays.qmpreset", 1);
    QMGenericPresetManager listed(ListedDirectoryIterator::factory(
        {{root, {{"gone.qmpreset", false}, {"gone folder", true}, {"stays.qmpreset", false}}}}));
    prepare(listed);
    listed.rescan();
    EXPECT_EQ(listed.numPresets(), 2u);
    EXPECT_EQ(listed.presetName(userRoot, 0), "gone");
    EXPECT_EQ(listed.loadPreset(userRoot, 0), nullptr);
    EXPECT_EQ(listed.presetUniqueId(userRoot, 0), 0u);
    EXPECT_NE(listed.loadPreset(userRoot, 1), nullptr);
    EXPECT_EQ(listed.root(1)->subFolderAt(0)->numChildren(), 0u);
    EXPECT_EQ(namesIn(user), Names{"stays.qmpreset"});
}

TEST_F(PresetScanLinksTest, entriesThatVanishDuringTheScanDoNotPassTheFilter) {
    const std::string root = utf8FromPath(user);
    QMGenericPresetManager listed(
        ListedDirectoryIterator::factory({{root, {{"gone.qmpreset", false}}}}));
    prepare(listed);
    auto filter = std::make_unique<QMGenericPresetFilter>(0, 0, 0);
    filter->setMatchAnyManufacturer(true);
    filter->setMatchAnyProduct(true);
    filter->setMatchAnyVariant(true);
    listed.setFilter(std::move(filter));
    listed.rescan();
    EXPECT_EQ(listed.numPresets(), 0u);
}

TEST_F(PresetScanLinksTest, foldersNestedWithoutEndAreFollowedToADepthOf64) {
    // A listing that answers the same wherever it is asked.
    class Endless : public QMDirectoryIterator {
    public:
        void open(const std::string&) override { left = 1; }

        bool next() override { return left-- > 0; }

        void current(std::string& name, bool& isDirectory) const override {
            name = "deeper";
            isDirectory = true;
        }

    private:
        int left = 0;
    };

    QMGenericPresetManager endless([] { return std::make_unique<Endless>(); });
    prepare(endless);
    endless.rescan();
    int depth = 0;
    for (const QMPresetFolder* folder = endless.root(1); folder != nullptr;
         folder = folder->subFolderAt(0))
        ++depth;
    // The last one is listed and not entered.
    EXPECT_EQ(depth, 65);
}

#ifndef _WIN32

TEST_F(PresetScanLinksTest, aFolderThatHoldsItselfIsListedEmpty) {
    writePreset(user / "Kicks" / "a.qmpreset", 1);
    fs::create_directory_symlink(user, user / "Kicks" / "all");
    fs::create_directory_symlink(".", user / "here");
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"a"});
    const QMPresetFolder& root = *manager.root(1);
    ASSERT_EQ(root.numSubFolders(), 2u);
    EXPECT_EQ(root.subFolderAt(0)->displayName(), "Kicks");
    ASSERT_EQ(root.subFolderAt(0)->numSubFolders(), 1u);
    EXPECT_EQ(root.subFolderAt(0)->subFolderAt(0)->numChildren(), 0u);
    EXPECT_EQ(root.subFolderAt(1)->displayName(), "here");
    EXPECT_EQ(root.subFolderAt(1)->numChildren(), 0u);
}

TEST_F(PresetScanLinksTest, aLinkToASiblingIsListedWithItsPresets) {
    writePreset(user / "Kicks" / "a.qmpreset", 1);
    fs::create_directory_symlink("Kicks", user / "Favourites");
    manager.rescan();
    EXPECT_EQ(breadcrumbs(), (Names{"User > Favourites > a", "User > Kicks > a"}));
}

TEST_F(PresetScanLinksTest, aLinkOutOfTheTreeIsFollowed) {
    writePreset(directory / "shared" / "a.qmpreset", 1);
    fs::create_directories(user);
    fs::create_directory_symlink(directory / "shared", user / "Shared");
    fs::create_symlink(directory / "shared" / "a.qmpreset", user / "linked.qmpreset");
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"a", "linked"}));
}

TEST_F(PresetScanLinksTest, bothRootsMayBeTheSameFolder) {
    writePreset(user / "a.qmpreset", 1);
    fs::create_directory_symlink(user, factory);
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"a", "a"}));
}

TEST_F(PresetScanLinksTest, foldersThatAllLinkToEachOtherDoNotMultiplyWithoutEnd) {
    // Without a bound there are 10! ways through ten folders.
    constexpr int count = 10;
    for (int from = 0; from < count; ++from) {
        const fs::path folder = user / std::to_string(from);
        writePreset(folder / "a.qmpreset", 1);
        for (int to = 0; to < count; ++to)
            if (to != from)
                fs::create_directory_symlink(user / std::to_string(to),
                                             folder / ("to " + std::to_string(to)));
    }
    manager.rescan();
    // Each of the ten is entered at least once and at most sixteen times.
    EXPECT_GE(manager.numPresets(), 10u);
    EXPECT_LE(manager.numPresets(), 160u);
}

TEST_F(PresetScanLinksTest, aPipeBlocksNothing) {
    fs::create_directories(user);
    ASSERT_EQ(mkfifo((user / "pipe.qmpreset").c_str(), 0600), 0);
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"pipe"});
    EXPECT_EQ(manager.loadPreset(userRoot, 0), nullptr);
    acceptEverySoundHeader();
    manager.rescan();
    EXPECT_TRUE(listedNames().empty());
}

TEST_F(PresetScanLinksTest, aLinkToADeviceBlocksNothing) {
    fs::create_directories(user);
    fs::create_symlink("/dev/zero", user / "zero.qmpreset");
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"zero"});
    EXPECT_EQ(manager.loadPreset(userRoot, 0), nullptr);
}

TEST_F(PresetScanLinksTest, aFolderNobodyMayReadIsListedEmpty) {
    writePreset(user / "closed" / "a.qmpreset", 1);
    writePreset(user / "open" / "b.qmpreset", 2);
    giveToUnprivilegedChild(user / "closed");
    fs::permissions(user / "closed", fs::perms::none);
    EXPECT_TRUE(inUnprivilegedChild([this] {
        manager.rescan();
        return listedNames() == Names{"b"} && manager.root(1)->numSubFolders() == 2 &&
               manager.root(1)->subFolderAt(0)->displayName() == "closed" &&
               manager.root(1)->subFolderAt(0)->numChildren() == 0;
    }));
    fs::permissions(user / "closed", fs::perms::owner_all);
}

TEST_F(PresetScanLinksTest, aFileNobodyMayReadIsListedWithoutARecord) {
    writePreset(user / "closed.qmpreset", 1);
    giveToUnprivilegedChild(user / "closed.qmpreset");
    fs::permissions(user / "closed.qmpreset", fs::perms::none);
    EXPECT_TRUE(inUnprivilegedChild([this] {
        manager.rescan();
        return listedNames() == Names{"closed"} && manager.loadPreset(userRoot, 0) == nullptr &&
               manager.presetUniqueId(userRoot, 0) == 0;
    }));
    EXPECT_EQ(readFile(user / "closed.qmpreset").empty(), geteuid() != 0);
}

#endif
