// SPDX-License-Identifier: GPL-3.0-or-later
//
// Bundles that are none.

#include "tools/brolt-host/vst3/Vst3Module.h"

#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
constexpr const char* libraryFolder = "Contents/x86_64-win";
constexpr const char* libraryEnding = ".vst3";
#else
constexpr const char* libraryFolder = "Contents/x86_64-linux";
constexpr const char* libraryEnding = ".so";
#endif

/// The error without the bundle's path in front.
std::string reasonOf(const fs::path& bundle) {
    const std::string error = errorOf([&] { const Vst3Module module(bundle); });
    const std::string front = utf8FromPath(bundle) + ": ";
    return error.starts_with(front) ? error.substr(front.size()) : error;
}

} // namespace

TEST(Vst3Module, aMissingBundleIsRefused) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonOf(folder / "None.vst3"), "no such VST3 bundle");
}

TEST(Vst3Module, aFileIsNoBundle) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonOf(folder.write("File.vst3", "x")), "is not a VST3 bundle, which is a folder");
}

TEST(Vst3Module, aFolderWithoutTheLibraryIsNoBundle) {
    const TemporaryFolder folder;
    fs::create_directories(folder / "Empty.vst3" / libraryFolder);
    const std::string library =
        utf8FromPath((fs::path(libraryFolder) / "Empty").concat(libraryEnding).make_preferred());
    EXPECT_EQ(reasonOf(folder / "Empty.vst3"),
              "is not a VST3 bundle for this system: it has no " + library);
}

TEST(Vst3Module, aLibraryThatIsNoneIsRefusedInOneLine) {
    const TemporaryFolder folder;
    const fs::path place = folder / "Text.vst3" / libraryFolder;
    fs::create_directories(place);
    folder.write(utf8FromPath(fs::path("Text.vst3") / libraryFolder / "Text") + libraryEnding,
                 "this is no library at all");
    const std::string reason = reasonOf(folder / "Text.vst3");
    EXPECT_TRUE(reason.starts_with("cannot be loaded: ")) << reason;
    EXPECT_EQ(reason.find('\n'), std::string::npos);
}

TEST(Vst3Module, theStandardBundleIsBesideTheProgram) {
    EXPECT_EQ(utf8FromPath(Vst3Module::standardBundle().filename()), "QMBrolt.vst3");
    EXPECT_TRUE(fs::is_directory(Vst3Module::standardBundle().parent_path()));
}
