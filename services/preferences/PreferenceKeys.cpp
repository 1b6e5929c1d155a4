// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceKeys.h"

#include "services/preferences/PreferencesStores.h"

namespace QM {

bool readPreference(const PreferenceKey<bool>& key) {
    return preferencesStore(key.store).getBoolValue(key.name, key.defaultValue);
}

std::int32_t readPreference(const PreferenceKey<std::int32_t>& key) {
    return preferencesStore(key.store).getIntValue(key.name, key.defaultValue);
}

void writePreference(const PreferenceKey<bool>& key, bool value) {
    preferencesStore(key.store).setValue(key.name, value);
}

void writePreference(const PreferenceKey<std::int32_t>& key, std::int32_t value) {
    preferencesStore(key.store).setValue(key.name, value);
}

} // namespace QM
