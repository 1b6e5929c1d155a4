// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferencesStore.h"

#include "services/preferences/PreferencesBaseFolder.h"

namespace QM {
namespace {

/// A file that is there but could not be read as preferences is set aside before a save replaces
/// it.
void keepDamagedFile(const juce::PropertiesFile& properties) {
    const juce::File& file = properties.getFile();
    if (properties.isValidFile() || !file.existsAsFile() || file.getSize() == 0)
        return;
    const juce::File kept = file.getSiblingFile(file.getFileName() + ".damaged");
    // Copied, so that reading alone changes nothing; what cannot even be read can only be moved.
    if (!file.copyFileTo(kept))
        file.moveFileTo(kept);
}

} // namespace

PreferencesStore::PreferencesStore(const PreferencesStoreDescription& description) {
    application.setStorageParameters(storageOptions(description));
    userSettings = application.getUserSettings();
    // The toolkit falls back on a file common to all users. Below a folder of a test's own that is
    // the same file again, as it was when it was opened.
    if (preferencesBaseFolder() != juce::File())
        userSettings->setFallbackPropertySet(nullptr);
    keepDamagedFile(*userSettings);
}

} // namespace QM
