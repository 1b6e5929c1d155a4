// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/tests/support/BundledFiles.h"

#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

std::optional<TemporaryDirectory>& directory() {
    static std::optional<TemporaryDirectory> made;
    return made;
}

class BundledFiles final : public ::testing::Environment {
public:
    void SetUp() override {
        directory().emplace();
        copyFiles(projectPictures(), bundledFiles());
        for (const char* const style : {"Book", "Demi", "BookOblique"}) {
            const juce::String name = juce::String("URWGothic-") + style + ".otf";
            const juce::File typeface = juce::File(BROLT_TYPEFACES).getChildFile(name);
            ASSERT_TRUE(typeface.copyFileTo(bundledFiles().getChildFile(name))) << name;
        }
    }

    void TearDown() override { directory().reset(); }
};

[[maybe_unused]] const auto* const registration =
    ::testing::AddGlobalTestEnvironment(new BundledFiles);

} // namespace

juce::File projectPictures() {
    return juce::File(BROLT_PICTURES);
}

juce::File bundledFiles() {
    return juce::File(juce::String(directory()->path().string()));
}

void copyFiles(const juce::File& from, const juce::File& to) {
    const juce::Array<juce::File> files =
        from.findChildFiles(juce::File::TypesOfFileToFind::findFiles, false);
    ASSERT_FALSE(files.isEmpty()) << from.getFullPathName();
    for (const juce::File& file : files)
        ASSERT_TRUE(file.copyFileTo(to.getChildFile(file.getFileName()))) << file.getFileName();
}
