// SPDX-License-Identifier: GPL-3.0-or-later
//
// The walk over the sources finds all of them and nothing that was built or fetched.

#include "tests/sources/SourceFiles.h"

#include "tests/sources/TemporaryTree.h"

#include <gmock/gmock.h>

#include <stdexcept>

using testing::Contains;
using testing::ElementsAre;

TEST(SourceFiles, headersAndBodiesAreFoundInEveryFolder) {
    const TemporaryTree tree;
    tree.write("b/c/D.cpp", "");
    tree.write("b/A.h", "");
    tree.write("Z.h", "");
    tree.write("b/notes.md", "");
    EXPECT_THAT(findSourceFiles(tree.root()), ElementsAre("Z.h", "b/A.h", "b/c/D.cpp"));
}

TEST(SourceFiles, theBuildFolderAndHiddenFoldersAreLeftOut) {
    const TemporaryTree tree;
    tree.write("build/native/Generated.cpp", "");
    tree.write(".cache/Index.h", "");
    tree.write("a/build/Own.h", "");
    EXPECT_THAT(findSourceFiles(tree.root()), ElementsAre("a/build/Own.h"));
}

TEST(SourceFiles, theSourcesOfThisTestAreAmongTheProjects) {
    EXPECT_THAT(findSourceFiles(BROLT_SOURCE_ROOT), Contains("tests/sources/SourceFilesTest.cpp"));
}

TEST(SourceFiles, linesComeWithoutTheirEnds) {
    const TemporaryTree tree;
    tree.write("a.txt", "one\r\n\ntwo");
    EXPECT_THAT(readLines(tree.root() / "a.txt"), ElementsAre("one", "", "two"));
}

TEST(SourceFiles, aFileThatIsMissingIsAnError) {
    const TemporaryTree tree;
    EXPECT_THROW(readLines(tree.root() / "a.txt"), std::runtime_error);
}
