// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps this test program's preferences out of the user's folders.
#include "services/preferences/PreferencesBaseFolder.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// GoogleTest owns it until after the process's stores have written what they had to.
class PreferencesFolder final : public ::testing::Environment {
public:
    void SetUp() override {
        directory.emplace();
        QM::setPreferencesBaseFolder(juce::File(juce::String(directory->path().string())));
    }

private:
    std::optional<TemporaryDirectory> directory;
};

[[maybe_unused]] const auto* const registration =
    ::testing::AddGlobalTestEnvironment(new PreferencesFolder);

} // namespace
