// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferencesStores.h"

#include "services/preferences/ProcessWideStore.h"

namespace QM {

juce::PropertiesFile& shellStore() {
    static ProcessWideStore store(describePreferencesStore(PreferencesStoreId::shell),
                                  ProcessWideStore::AtShutdown::save);
    return store.properties();
}

juce::PropertiesFile& plugInsStore() {
    static ProcessWideStore store(describePreferencesStore(PreferencesStoreId::plugIns),
                                  ProcessWideStore::AtShutdown::save);
    return store.properties();
}

juce::PropertiesFile& consoleStore() {
    static ProcessWideStore store(describePreferencesStore(PreferencesStoreId::console),
                                  ProcessWideStore::AtShutdown::destroy);
    return store.properties();
}

juce::PropertiesFile& preferencesStore(PreferencesStoreId store) {
    switch (store) {
    case PreferencesStoreId::shell:
        return shellStore();
    case PreferencesStoreId::plugIns:
        return plugInsStore();
    case PreferencesStoreId::console:
        break;
    }
    return consoleStore();
}

} // namespace QM
