// SPDX-License-Identifier: GPL-3.0-or-later
// One open preference store: the toolkit's application properties with the options of a store.
//
// A missing, unreadable or damaged file reads as an empty set, so every getter answers its default.
// The next save replaces such a file; therefore what stood in it is kept beside it first, under the
// file's name with ".damaged" appended. Failures to write are not reported: the values stay in
// memory, and the next change or the end of the store tries again.
#pragma once

#include "services/preferences/PreferencesStoreDescription.h"

namespace QM {

class PreferencesStore {
public:
    /// Reads the file. [message thread]
    explicit PreferencesStore(const PreferencesStoreDescription& description);

    /// Writes what is not written yet. [message thread]
    ~PreferencesStore() = default;

    PreferencesStore(const PreferencesStore&) = delete;
    PreferencesStore& operator=(const PreferencesStore&) = delete;

    /// The user's settings: typed getters with a default, a setter that starts the saving timer,
    /// saveIfNeeded() to save at once. A text that is no number reads as 0 or false, as everywhere
    /// in the toolkit; the default is for keys that are missing. [message thread]
    [[nodiscard]] juce::PropertiesFile& properties() { return *userSettings; }

private:
    juce::ApplicationProperties application;
    juce::PropertiesFile* userSettings; ///< owned by the application properties
};

} // namespace QM
