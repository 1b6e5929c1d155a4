// SPDX-License-Identifier: GPL-3.0-or-later
// A folder as an item: children, their order and numbers, finding by path.
#include "presets/manager/QMPresetFolder.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

class QMPresetFolderTest : public ::testing::Test {
protected:
    QMPresetFolder root{{.displayName = "User Presets", .fileName = "/presets/user"}};

    static QMPresetItem& addPreset(QMPresetFolder& folder, const std::string& name) {
        return folder.addPreset(std::make_unique<QMPresetItem>(QMPresetItem::Origin{
            .displayName = name, .fileName = name + ".qmpreset", .parent = &folder}));
    }

    static QMPresetFolder& addFolder(QMPresetFolder& folder, const std::string& name) {
        return folder.addFolder(std::make_unique<QMPresetFolder>(
            QMPresetItem::Origin{.displayName = name, .fileName = name}));
    }

    [[nodiscard]] Names childNames() const {
        Names names;
        for (std::size_t i = 0; i < root.numChildren(); ++i)
            names.push_back(root.childAt(i)->displayName());
        return names;
    }
};

} // namespace

TEST_F(QMPresetFolderTest, isAFolderWithoutARecord) {
    EXPECT_TRUE(root.isFolder());
    EXPECT_EQ(root.record(), nullptr);
    EXPECT_EQ(root.uniqueId(), 0u);
    EXPECT_EQ(root.numChildren(), 0u);
    EXPECT_EQ(root.childAt(0), nullptr);
    EXPECT_EQ(root.presetAt(0), nullptr);
    EXPECT_EQ(root.subFolderAt(0), nullptr);
}

TEST_F(QMPresetFolderTest, countsChildrenAndFoldersAndSkipsFoldersAmongPresets) {
    addPreset(root, "b");
    QMPresetFolder& folder = addFolder(root, "a");
    addPreset(root, "c");
    root.sortChildren();
    EXPECT_EQ(root.numChildren(), 3u);
    EXPECT_EQ(root.numSubFolders(), 1u);
    EXPECT_EQ(root.childAt(0), &folder);
    EXPECT_EQ(root.childAt(3), nullptr);
    EXPECT_EQ(root.presetAt(0)->displayName(), "b");
    EXPECT_EQ(root.presetAt(1)->displayName(), "c");
    EXPECT_EQ(root.presetAt(2), nullptr);
    EXPECT_EQ(root.subFolderAt(0), &folder);
    EXPECT_EQ(root.subFolderAt(1), nullptr);
}

TEST_F(QMPresetFolderTest, sortsByUnsignedBytesWithAPrefixFirst) {
    for (const char* name : {"\xC3\xA4", "b", "B", "aa", "a", "Z", " ", "~"})
        addPreset(root, name);
    root.sortChildren();
    EXPECT_EQ(childNames(), (Names{" ", "B", "Z", "a", "aa", "b", "~", "\xC3\xA4"}));
}

TEST_F(QMPresetFolderTest, numbersPresetsFromZeroAndFoldersFromOne) {
    for (const char* name : {"p2", "p1", "p3"})
        addPreset(root, name);
    for (const char* name : {"q2", "a1"})
        addFolder(root, name);
    root.sortChildren();
    EXPECT_EQ(childNames(), (Names{"a1", "p1", "p2", "p3", "q2"}));
    const std::vector<std::uint32_t> expected = {1, 0, 1, 2, 2};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(root.childAt(i)->positionInFolder(), expected[i]) << i;
}

TEST_F(QMPresetFolderTest, aFolderThatIsAddedGetsItsParentAndKeepsItsBreadcrumb) {
    QMPresetFolder& folder = addFolder(root, "Kicks");
    EXPECT_EQ(folder.parent(), &root);
    EXPECT_EQ(folder.path(), "/presets/user/Kicks");
    EXPECT_EQ(folder.breadcrumb(), "User > Kicks");
}

TEST_F(QMPresetFolderTest, findsByThePathFromItsOwnNameOn) {
    QMPresetFolder& kicks = addFolder(root, "Kicks");
    QMPresetFolder& deep = addFolder(kicks, "Deep");
    QMPresetItem& direct = addPreset(root, "direct");
    QMPresetItem& inKicks = addPreset(kicks, "808");
    QMPresetItem& inDeep = addPreset(deep, "808");
    EXPECT_EQ(root.findByFileName("/presets/user/direct.qmpreset"), &direct);
    EXPECT_EQ(root.findByFileName("/presets/user/Kicks/808.qmpreset"), &inKicks);
    EXPECT_EQ(root.findByFileName("/presets/user/Kicks/Deep/808.qmpreset"), &inDeep);
}

TEST_F(QMPresetFolderTest, findsNothingForOtherPaths) {
    addPreset(addFolder(root, "Kick"), "a");
    for (const char* other :
         {"", "/presets/user", "/presets/user/", "/presets/user/Kick", "/presets/user/Kick/",
          "/presets/user/Kick/a", "/presets/users/Kick/a.qmpreset", "/presets/userKick/a.qmpreset",
          "/presets/user/Kicks/a.qmpreset", "/presets/user/Kick/a.qmpreset/", "Kick/a.qmpreset"})
        EXPECT_EQ(root.findByFileName(other), nullptr) << other;
}

TEST_F(QMPresetFolderTest, aFolderWhoseNameBeginsLikeAnothersDoesNotHideIt) {
    addFolder(root, "Kick");
    QMPresetItem& wanted = addPreset(addFolder(root, "Kicks"), "a");
    EXPECT_EQ(root.findByFileName("/presets/user/Kicks/a.qmpreset"), &wanted);
}

TEST_F(QMPresetFolderTest, aBackslashSeparatesWhereTheSystemsPathsHaveThem) {
    QMPresetItem& preset = addPreset(addFolder(root, "Kick"), "a");
#ifdef _WIN32
    EXPECT_EQ(root.findByFileName("/presets/user\\Kick\\a.qmpreset"), &preset);
#else
    EXPECT_EQ(root.findByFileName("/presets/user\\Kick\\a.qmpreset"), nullptr);
    EXPECT_NE(root.findByFileName(preset.path()), nullptr);
#endif
}
