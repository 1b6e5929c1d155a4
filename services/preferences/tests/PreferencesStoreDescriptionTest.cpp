// SPDX-License-Identifier: GPL-3.0-or-later
// Names, folders and options of the stores, and where the toolkit puts their files.
#include "services/preferences/PreferencesStoreDescription.h"

#include "services/preferences/PreferencesBaseFolder.h"
#include "services/preferences/tests/PreferencesFixtures.h"

#include <cstdlib>

using QM::PreferencesStoreId;

namespace {

struct Row {
    PreferencesStoreId store;
    const char* applicationName;
    const char* suffix;
    const char* folder;
    const char* appleSubFolder;
};

// clang-format off
constexpr Row rows[] = {
    {PreferencesStoreId::shell,   "QMShell",      ".settings", "QM Plugin Preferences", "Preferences"},
    {PreferencesStoreId::plugIns, "QMPlugins",    ".settings", "QM Plugin Preferences", "Preferences"},
    {PreferencesStoreId::console, "NoxConsole3d", ".prefs",    "NoxConsole3d",          "Preferences"},
};

// clang-format on

/// No folder set: the one of the toolkit. Nothing is opened there.
class UsersFolder : public ::testing::Test {
protected:
    UsersFolder() { QM::setPreferencesBaseFolder(juce::File()); }

    ~UsersFolder() override { QM::setPreferencesBaseFolder(before); }

private:
    juce::File before = QM::preferencesBaseFolder();
};

/// Where the toolkit keeps a user's preferences, asked from the platform.
juce::File usersPlace() {
#ifdef _WIN32
    const char* const place = std::getenv("APPDATA");
#else
    const char* const place = std::getenv("HOME");
#endif
    return juce::File(juce::String::fromUTF8(place));
}

} // namespace

using PreferencesStoreDescription = UsersFolder;

TEST_F(PreferencesStoreDescription, thereAreThreeStores) {
    EXPECT_EQ(QM::allPreferencesStores.size(), std::size(rows));
}

TEST_F(PreferencesStoreDescription, everyStoreHasItsNamesAndFolders) {
    for (const Row& row : rows) {
        const auto& description = QM::describePreferencesStore(row.store);
        EXPECT_STREQ(description.applicationName, row.applicationName);
        EXPECT_STREQ(description.suffix, row.suffix);
        EXPECT_STREQ(description.folder, row.folder);
        EXPECT_STREQ(description.appleSubFolder, row.appleSubFolder);
    }
}

TEST_F(PreferencesStoreDescription, theOptionsAreTheSameForAllBesideTheNames) {
    for (const Row& row : rows) {
        const auto options = QM::storageOptions(QM::describePreferencesStore(row.store));
        EXPECT_EQ(options.applicationName, row.applicationName);
        EXPECT_EQ(options.filenameSuffix, row.suffix);
        EXPECT_EQ(options.folderName, row.folder);
        EXPECT_EQ(options.osxLibrarySubFolder, row.appleSubFolder);
        EXPECT_FALSE(options.commonToAllUsers);
        EXPECT_FALSE(options.ignoreCaseOfKeyNames);
        EXPECT_FALSE(options.doNotSave);
        EXPECT_EQ(options.millisecondsBeforeSaving, 3000);
        EXPECT_EQ(options.storageFormat, juce::PropertiesFile::storeAsXML);
        EXPECT_EQ(options.processLock, nullptr);
    }
}

TEST_F(PreferencesStoreDescription, theFilesAreInTheUsersOwnPlace) {
    for (const Row& row : rows) {
        const juce::File file =
            QM::storageOptions(QM::describePreferencesStore(row.store)).getDefaultFile();
        const juce::File expected =
            usersPlace()
                .getChildFile(row.folder)
                .getChildFile(juce::String(row.applicationName) + row.suffix);
        EXPECT_EQ(file.getFullPathName(), expected.getFullPathName());
    }
}

TEST_F(PreferencesStoreDescription, aBaseFolderReplacesTheUsersPlace) {
    const TemporaryDirectory directory;
    QM::setPreferencesBaseFolder(preferencesTest::toJuceFile(directory.path()));
    for (const Row& row : rows) {
        const juce::File file =
            QM::storageOptions(QM::describePreferencesStore(row.store)).getDefaultFile();
        EXPECT_EQ(
            file.getFullPathName(),
            preferencesTest::toJuceFile(preferencesTest::storeFile(directory.path(), row.store))
                .getFullPathName());
    }
    QM::setPreferencesBaseFolder(juce::File());
}
