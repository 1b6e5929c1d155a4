// SPDX-License-Identifier: GPL-3.0-or-later
// The three preference stores: what they are called and where their files are. Names and folders
// are shared with every other product of the family on the machine, so none may ever change.
#pragma once

#include <juce_data_structures/juce_data_structures.h>

#include <array>

namespace QM {

enum class PreferencesStoreId {
    shell,   ///< what the user set in preference panels, sizes and backgrounds of editors
    plugIns, ///< how editors are drawn
    console, ///< preset browser, colour pickers
};

inline constexpr std::array allPreferencesStores{
    PreferencesStoreId::shell, PreferencesStoreId::plugIns, PreferencesStoreId::console};

struct PreferencesStoreDescription {
    const char* applicationName; ///< the file's name without the suffix
    const char* suffix;          ///< with its dot
    const char* folder;          ///< below the folder that the toolkit gives a user's preferences
    const char* appleSubFolder;  ///< read on macOS only
};

/// [any thread]
[[nodiscard]] const PreferencesStoreDescription& describePreferencesStore(PreferencesStoreId store);

/// What the toolkit is told: an XML file of the user's own, keys told apart by case, saved 3000 ms
/// after the last change, no lock between processes. The file stands where the toolkit puts it on
/// this platform, or below preferencesBaseFolder() where one is set. [message thread]
[[nodiscard]] juce::PropertiesFile::Options
storageOptions(const PreferencesStoreDescription& description);

} // namespace QM
