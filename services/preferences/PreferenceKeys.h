// SPDX-License-Identifier: GPL-3.0-or-later
// The single preferences (those that belong to no preference group): key, type and default in one
// table, read and written in the process's stores.
#pragma once

#include "services/preferences/PreferencesStoreDescription.h"

#include <cstdint>

namespace QM {

template <typename Value>
struct PreferenceKey {
    PreferencesStoreId store;
    const char* name;
    Value defaultValue;
};

namespace PreferenceKeys {

// clang-format off
// Editor rendering switches, read when an editor is made.
inline constexpr PreferenceKey<bool>         useLayer                {PreferencesStoreId::plugIns, "useLayer",                   true};
inline constexpr PreferenceKey<bool>         useAsync                {PreferencesStoreId::plugIns, "useAsync",                   false};
inline constexpr PreferenceKey<bool>         useBackingImages        {PreferencesStoreId::plugIns, "useBackingImages",           true};
// Preset browser: apply a preset as soon as it is selected.
inline constexpr PreferenceKey<bool>         autoApplySelectedPreset {PreferencesStoreId::console, "auto_apply_selected_preset", false};
// Kind of colour selector that all colour-picking widgets share.
inline constexpr PreferenceKey<std::int32_t> globalColourPicker      {PreferencesStoreId::console, "global_color_picker",        0};
// clang-format on

} // namespace PreferenceKeys

/// The stored value, or the key's default where there is none. [message thread]
[[nodiscard]] bool readPreference(const PreferenceKey<bool>& key);
[[nodiscard]] std::int32_t readPreference(const PreferenceKey<std::int32_t>& key);

/// Seen by everybody in the process at once, saved by the store's timer. [message thread]
void writePreference(const PreferenceKey<bool>& key, bool value);
void writePreference(const PreferenceKey<std::int32_t>& key, std::int32_t value);

} // namespace QM
