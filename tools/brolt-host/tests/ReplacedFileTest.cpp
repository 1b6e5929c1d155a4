// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/ReplacedFile.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

#include <fstream>

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::EndsWith;

namespace {

void fill(const ReplacedFile& file, const std::string& text) {
    std::ofstream stream(file.temporaryPath(), std::ios::binary);
    stream << text;
}

std::string errorFor(const fs::path& target) {
    return errorOf([&] { const ReplacedFile file(target); });
}

} // namespace

TEST(ReplacedFile, theTargetAppearsAtTheCommitAndNothingElseStays) {
    const TemporaryFolder folder;
    {
        ReplacedFile file(folder / "out.wav");
        fill(file, "new");
        EXPECT_FALSE(fs::exists(folder / "out.wav"));
        EXPECT_EQ(file.temporaryPath().parent_path(), folder.path());
        file.commit();
    }
    EXPECT_THAT(folder.names(), ElementsAre("out.wav"));
    EXPECT_EQ(bytesOf(folder / "out.wav"), "new");
}

TEST(ReplacedFile, withoutACommitTheOldFileIsUntouchedAndTheTemporaryOneGone) {
    const TemporaryFolder folder;
    folder.write("out.wav", "old");
    {
        const ReplacedFile file(folder / "out.wav");
        fill(file, "half");
        EXPECT_EQ(folder.names().size(), 2U);
    }
    EXPECT_THAT(folder.names(), ElementsAre("out.wav"));
    EXPECT_EQ(bytesOf(folder / "out.wav"), "old");
}

TEST(ReplacedFile, anOldFileIsReplaced) {
    const TemporaryFolder folder;
    folder.write("out.wav", "a longer old text");
    ReplacedFile file(folder / "out.wav");
    fill(file, "new");
    file.commit();
    EXPECT_EQ(bytesOf(folder / "out.wav"), "new");
}

TEST(ReplacedFile, twoOfThemForOneTargetDoNotGetInEachOthersWay) {
    const TemporaryFolder folder;
    ReplacedFile first(folder / "out.wav");
    ReplacedFile second(folder / "out.wav");
    EXPECT_NE(first.temporaryPath(), second.temporaryPath());
    fill(first, "first");
    fill(second, "second");
    first.commit();
    second.commit();
    EXPECT_EQ(bytesOf(folder / "out.wav"), "second");
}

TEST(ReplacedFile, aNameAsLongAsNamesCanBeWorks) {
    const TemporaryFolder folder;
    const std::string name(200, 'n');
    ReplacedFile file(folder / name);
    fill(file, "new");
    file.commit();
    EXPECT_THAT(folder.names(), ElementsAre(name));
}

TEST(ReplacedFile, aMissingFolderIsAnError) {
    const TemporaryFolder folder;
    EXPECT_THAT(errorFor(folder / "missing" / "out.wav"),
                EndsWith("out.wav: its folder does not exist"));
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST(ReplacedFile, aFileInPlaceOfTheFolderIsAnError) {
    const TemporaryFolder folder;
    folder.write("file", "");
    EXPECT_THAT(errorFor(folder / "file" / "out.wav"), EndsWith(": its folder does not exist"));
}

TEST(ReplacedFile, aFolderInPlaceOfTheTargetIsAnError) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "out.wav");
    EXPECT_THAT(errorFor(folder / "out.wav"), EndsWith("out.wav: is a folder"));
    EXPECT_THAT(errorFor(folder.path() / ""), EndsWith(": is not a file name"));
}

TEST(ReplacedFile, aWriteProtectedTargetIsLeftAlone) {
    const TemporaryFolder folder;
    const fs::path target = folder.write("out.wav", "old");
    fs::permissions(target, fs::perms::owner_read);
    EXPECT_THAT(errorFor(target), EndsWith("out.wav: is write-protected"));
    fs::permissions(target, fs::perms::owner_all);
    EXPECT_THAT(folder.names(), ElementsAre("out.wav"));
}

#ifndef _WIN32

TEST(ReplacedFile, aDeviceIsNotReplaced) {
    EXPECT_EQ(errorFor("/dev/null"), "/dev/null: is not a regular file");
}

TEST(ReplacedFile, behindALinkTheFileItLeadsToIsReplaced) {
    const TemporaryFolder folder;
    folder.write("real.wav", "old");
    fs::create_symlink("real.wav", folder / "link.wav");
    ReplacedFile file(folder / "link.wav");
    fill(file, "new");
    file.commit();
    EXPECT_TRUE(fs::is_symlink(folder / "link.wav"));
    EXPECT_EQ(bytesOf(folder / "real.wav"), "new");
}

TEST(ReplacedFile, thePermissionsOfTheOldFileAreKept) {
    const TemporaryFolder folder;
    const fs::path target = folder.write("out.wav", "old");
    const fs::perms wanted = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(target, wanted);
    ReplacedFile file(target);
    file.commit();
    EXPECT_EQ(fs::status(target).permissions(), wanted);
}

#endif
