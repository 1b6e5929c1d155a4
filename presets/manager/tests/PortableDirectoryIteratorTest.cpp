// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PortableDirectoryIterator.h"

#include "presets/manager/tests/PresetBytes.h"
#include "presets/record/Utf8Path.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#    include <sys/socket.h>
#    include <sys/stat.h>
#    include <sys/un.h>
#    include <unistd.h>
#endif

#include <map>

namespace {

using Listing = std::map<std::string, bool>;

/// Name and whether it is a folder.
Listing list(const std::filesystem::path& folder) {
    Listing entries;
    PortableDirectoryIterator iterator;
    iterator.open(utf8FromPath(folder));
    while (iterator.next()) {
        std::string name;
        bool isDirectory = false;
        iterator.current(name, isDirectory);
        EXPECT_TRUE(entries.emplace(name, isDirectory).second) << name << " is listed twice";
    }
    return entries;
}

class PortableDirectoryIteratorTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
};

} // namespace

TEST_F(PortableDirectoryIteratorTest, listsFilesAndFoldersAndHiddenOnesButNotWhatIsBelow) {
    writeFile(directory / "a.qmpreset", "a");
    writeFile(directory / ".hidden", "b");
    std::filesystem::create_directories(directory / "folder" / "below");
    std::filesystem::create_directory(directory / ".hidden folder");
    EXPECT_EQ(list(directory.path()), (Listing{{"a.qmpreset", false},
                                               {".hidden", false},
                                               {"folder", true},
                                               {".hidden folder", true}}));
}

TEST_F(PortableDirectoryIteratorTest, anEmptyFolderListsNothing) {
    EXPECT_TRUE(list(directory.path()).empty());
}

TEST_F(PortableDirectoryIteratorTest, whatIsNoFolderListsNothing) {
    writeFile(directory / "file", "a");
    EXPECT_TRUE(list(directory / "file").empty());
    EXPECT_TRUE(list(directory / "missing").empty());
}

TEST_F(PortableDirectoryIteratorTest, anIteratorThatWasNotOpenedListsNothing) {
    PortableDirectoryIterator iterator;
    EXPECT_FALSE(iterator.next());
}

TEST_F(PortableDirectoryIteratorTest, staysAtItsEndAndCanBeOpenedAgain) {
    writeFile(directory / "a", "a");
    PortableDirectoryIterator iterator;
    for (int round = 0; round < 2; ++round) {
        iterator.open(utf8FromPath(directory.path()));
        EXPECT_TRUE(iterator.next());
        EXPECT_FALSE(iterator.next());
        EXPECT_FALSE(iterator.next());
    }
}

TEST_F(PortableDirectoryIteratorTest, theFactoryMakesIteratorsOfThisKind) {
    const auto made = PortableDirectoryIterator::factory()();
    EXPECT_NE(dynamic_cast<PortableDirectoryIterator*>(made.get()), nullptr);
}

#ifndef _WIN32

TEST_F(PortableDirectoryIteratorTest, linksAreWhatTheyLeadTo) {
    std::filesystem::create_directory(directory / "folder");
    writeFile(directory / "file", "a");
    std::filesystem::create_symlink("folder", directory / "to folder");
    std::filesystem::create_symlink("file", directory / "to file");
    std::filesystem::create_symlink("nothing", directory / "to nothing");
    const Listing entries = list(directory.path());
    EXPECT_TRUE(entries.at("to folder"));
    EXPECT_FALSE(entries.at("to file"));
    EXPECT_FALSE(entries.at("to nothing"));
}

TEST_F(PortableDirectoryIteratorTest, socketsAndPipesAreNoFolders) {
    ASSERT_EQ(mkfifo((directory / "pipe").c_str(), 0600), 0);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(descriptor, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const std::string path = directory / "socket";
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(descriptor);
    EXPECT_EQ(list(directory.path()), (Listing{{"pipe", false}, {"socket", false}}));
}

#endif
