// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of preferences stand on: the toolkit for the length of a test, a message loop that
// runs until something has happened, and folders that are not the user's.
#pragma once

#include "services/preferences/PreferencesStoreDescription.h"
#include "services/tests/TemporaryDirectory.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace preferencesTest {

/// The file of a store below a base folder, its name written out here.
std::filesystem::path storeFile(const std::filesystem::path& base, QM::PreferencesStoreId store);

juce::File toJuceFile(const std::filesystem::path& path);

/// The base folder of the process's own stores in this test program.
const std::filesystem::path& processFolder();

/// A process that inherits this variable takes its value for the process's folder.
constexpr const char* processFolderVariable = "QM_TEST_PREFERENCES_FOLDER";

class ToolkitTest : public ::ToolkitTest {
protected:
    /// False on Windows where no window can be made: no timer comes through then.
    static bool canRunLoop();
};

/// Stores that the test opens itself, in a folder of its own.
class OwnStoreTest : public ToolkitTest {
protected:
    OwnStoreTest();
    ~OwnStoreTest() override;

    [[nodiscard]] const std::filesystem::path& base() const { return base_; }

    [[nodiscard]] std::filesystem::path shellFile() const {
        return storeFile(base_, QM::PreferencesStoreId::shell);
    }

    /// Puts the bytes where the shell store's file is.
    void writeShellFile(const std::string& bytes) const;

private:
    TemporaryDirectory directory;
    std::filesystem::path base_;
    juce::File folderBefore;
};

/// The process's own stores, empty at the start of the test.
class ProcessStoresTest : public ToolkitTest {
protected:
    ProcessStoresTest();
    ~ProcessStoresTest() override;

    [[nodiscard]] static std::filesystem::path file(QM::PreferencesStoreId store) {
        return storeFile(processFolder(), store);
    }
};

} // namespace preferencesTest
