// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferencesStoreDescription.h"

#include "services/preferences/PreferencesBaseFolder.h"

namespace QM {
namespace {

constexpr int millisecondsBeforeSaving = 3000;

// clang-format off
constexpr PreferencesStoreDescription shell  {"QMShell",      ".settings", "QM Plugin Preferences", "Preferences"};
constexpr PreferencesStoreDescription plugIns{"QMPlugins",    ".settings", "QM Plugin Preferences", "Preferences"};
constexpr PreferencesStoreDescription console{"NoxConsole3d", ".prefs",    "NoxConsole3d",          "Preferences"};
// clang-format on

} // namespace

const PreferencesStoreDescription& describePreferencesStore(PreferencesStoreId store) {
    switch (store) {
    case PreferencesStoreId::shell:
        return shell;
    case PreferencesStoreId::plugIns:
        return plugIns;
    case PreferencesStoreId::console:
        break;
    }
    return console;
}

juce::PropertiesFile::Options storageOptions(const PreferencesStoreDescription& description) {
    juce::PropertiesFile::Options options;
    options.applicationName = description.applicationName;
    options.filenameSuffix = description.suffix;
    options.osxLibrarySubFolder = description.appleSubFolder;
    options.commonToAllUsers = false;
    options.ignoreCaseOfKeyNames = false;
    options.doNotSave = false;
    options.millisecondsBeforeSaving = millisecondsBeforeSaving;
    options.storageFormat = juce::PropertiesFile::storeAsXML;
    options.processLock = nullptr;

    // The toolkit appends the folder to its own place, and an absolute one replaces that place.
    const juce::File base = preferencesBaseFolder();
    options.folderName = base == juce::File()
                             ? juce::String(description.folder)
                             : base.getChildFile(description.folder).getFullPathName();
    return options;
}

} // namespace QM
