// SPDX-License-Identifier: GPL-3.0-or-later
//
// The form every source file has: the licence line, a first comment, #pragma once in headers, and
// the layout clang-format gives it.

#include "tests/sources/SourceFiles.h"
#include "tests/sources/TemporaryTree.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace {

const std::filesystem::path sourceRoot = BROLT_SOURCE_ROOT;

// What clang-format has against the files (paths relative to the project's root or absolute), and
// its exit status. The layout rules are those of the project, wherever the files are.
struct FormatReport {
    std::string text;
    int status = -1;
};

FormatReport runClangFormat(const std::vector<std::string>& files) {
    std::string command = "cd '" + sourceRoot.string() +
                          "' && '" BROLT_CLANG_FORMAT
                          "' --dry-run -Werror --style=file:.clang-format";
    for (const std::string& file : files) {
        command += " '" + file + "'";
    }
    command += " 2>&1";

    FormatReport report;
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return report;
    }
    char buffer[4096];
    while (std::fgets(buffer, sizeof buffer, pipe) != nullptr) {
        report.text += buffer;
    }
    report.status = pclose(pipe);
    return report;
}

} // namespace

TEST(SourceForm, clangFormatHasNothingAgainstTheSources) {
    const FormatReport report = runClangFormat(findSourceFiles(sourceRoot));
    EXPECT_EQ(report.status, 0) << "scripts/format puts this right\n"
                                << report.text.substr(0, 4000);
}

TEST(SourceForm, clangFormatFindsAPlantedMistake) {
    const TemporaryTree tree;
    tree.write("Good.cpp", "int* a;\n");
    tree.write("Bad.cpp", "int  * a ;\n");
    EXPECT_EQ(runClangFormat({(tree.root() / "Good.cpp").string()}).status, 0);
    const FormatReport report = runClangFormat({(tree.root() / "Bad.cpp").string()});
    EXPECT_NE(report.status, 0);
    EXPECT_NE(report.text.find("Bad.cpp:1:"), std::string::npos) << report.text;
}

TEST(SourceForm, everyFileBeginsWithTheLicenceLine) {
    for (const std::string& file : findSourceFiles(sourceRoot)) {
        const std::vector<std::string> lines = readLines(sourceRoot / file);
        ASSERT_FALSE(lines.empty()) << file;
        EXPECT_EQ(lines[0], "// SPDX-License-Identifier: GPL-3.0-or-later") << file;
    }
}

namespace {

/// The header that explains a body: its own, or for FooTest.cpp in a folder of tests the Foo.h
/// above.
bool isExplainedByAHeader(const std::filesystem::path& body) {
    std::filesystem::path header = body;
    if (is_regular_file(header.replace_extension(".h"))) {
        return true;
    }
    const std::string stem = body.stem().string();
    constexpr std::string_view ending = "Test";
    return stem.ends_with(ending) &&
           is_regular_file(body.parent_path().parent_path() /
                           (stem.substr(0, stem.size() - ending.size()) + ".h"));
}

} // namespace

// A body is explained by its header, so it may do without a comment of its own.
TEST(SourceForm, aCommentOpensEveryHeaderAndEveryBodyThatHasNone) {
    for (const std::string& file : findSourceFiles(sourceRoot)) {
        const std::filesystem::path path = sourceRoot / file;
        if (path.extension() == ".cpp" && isExplainedByAHeader(path)) {
            continue;
        }
        const std::vector<std::string> lines = readLines(path);
        ASSERT_GE(lines.size(), 3U) << file;
        // It stands directly below the licence line or after an empty line.
        const std::string& comment = lines[1] == "//" || lines[1].empty() ? lines[2] : lines[1];
        EXPECT_TRUE(comment.starts_with("// ")) << file << ": " << comment;
    }
}

TEST(SourceForm, everyHeaderIsReadOnce) {
    for (const std::string& file : findSourceFiles(sourceRoot)) {
        if (!file.ends_with(".h")) {
            continue;
        }
        bool found = false;
        for (const std::string& line : readLines(sourceRoot / file)) {
            found = found || line == "#pragma once";
        }
        EXPECT_TRUE(found) << file;
    }
}
