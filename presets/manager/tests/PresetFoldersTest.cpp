// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetFolders.h"

#include "presets/manager/PortableDirectoryIterator.h"
#include "presets/manager/QMGenericPresetManager.h"
#include "presets/manager/tests/TestHome.h"

#include <gtest/gtest.h>

#include <fstream>

#ifdef _WIN32

#    include <windows.h>

#    include <shlobj.h>

namespace {

std::string systemFolder(int which) {
    wchar_t wide[MAX_PATH] = {};
    SHGetFolderPathW(nullptr, which, nullptr, 0, wide);
    const std::u8string text = std::filesystem::path(wide).u8string();
    return {text.begin(), text.end()};
}

} // namespace

TEST(PresetFolders, areBelowTheFoldersForProgramsAndForTheUsersDocuments) {
    const PresetFolders folders = findPresetFolders("QM Brolt");
    EXPECT_EQ(folders.factory, systemFolder(CSIDL_PROGRAM_FILES) + "\\Quolm\\QMPresets\\QM Brolt");
    EXPECT_EQ(folders.user, systemFolder(CSIDL_PERSONAL) + "\\Quolm\\QMPresets\\QM Brolt");
}

TEST(PresetFolders, anEmptyNameIsReplaced) {
    EXPECT_TRUE(findPresetFolders("").factory.ends_with("\\Quolm\\QMPresets\\QM Plug-In"));
    EXPECT_TRUE(findPresetFolders("").user.ends_with("\\Quolm\\QMPresets\\QM Plug-In"));
}

#else

TEST(PresetFolders, areBelowTheSharedDataAndTheUsersDocuments) {
    const PresetFolders folders = findPresetFolders("QM Brolt");
    EXPECT_EQ(folders.factory, "/usr/share/Quolm/QMPresets/QM Brolt");
    EXPECT_EQ(folders.user, testHomeFolder().string() + "/Documents/Quolm/QMPresets/QM Brolt");
}

TEST(PresetFolders, theUsersDocumentsMayHaveAnotherName) {
    std::filesystem::create_directories(testHomeFolder() / "Dokumente");
    std::filesystem::create_directories(testHomeFolder() / ".config");
    const std::filesystem::path setting = testHomeFolder() / ".config" / "user-dirs.dirs";
    std::ofstream(setting) << "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n";
    const PresetFolders folders = findPresetFolders("QM Brolt");
    std::filesystem::remove(setting);
    EXPECT_EQ(folders.user, testHomeFolder().string() + "/Dokumente/Quolm/QMPresets/QM Brolt");
}

TEST(PresetFolders, anEmptyNameIsReplaced) {
    EXPECT_EQ(findPresetFolders("").factory, "/usr/share/Quolm/QMPresets/QM Plug-In");
    EXPECT_TRUE(findPresetFolders("").user.ends_with("/Quolm/QMPresets/QM Plug-In"));
}

#endif

TEST(PresetFolders, theFirstNameOfTheProcessHoldsForAllThatFollow) {
    const PresetFolders first = presetFoldersOfProcess("First Product");
    EXPECT_EQ(first, findPresetFolders("First Product"));
    EXPECT_EQ(presetFoldersOfProcess("Second Product"), first);
    EXPECT_EQ(presetFoldersOfProcess(""), first);

    QMGenericPresetManager manager(PortableDirectoryIterator::factory());
    manager.setProductFolderName("Third Product");
    manager.rescan();
    ASSERT_NE(manager.root(0), nullptr);
    EXPECT_EQ(manager.root(0)->fileName(), first.factory);
    EXPECT_EQ(manager.root(1)->fileName(), first.user);
}
