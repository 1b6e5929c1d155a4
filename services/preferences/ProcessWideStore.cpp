// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/ProcessWideStore.h"

#include "services/preferences/CleanupAppProps.h"

namespace QM {

ProcessWideStore::ProcessWideStore(const PreferencesStoreDescription& storeDescription,
                                   AtShutdown whatThen)
    : description(storeDescription)
    , atShutdown(whatThen) {
    // The last save may come from this object's destructor at unload. What writes XML needs the
    // toolkit's pool of strings then, so the pool has to be made before this object is complete.
    juce::StringPool::getGlobalPool();
    (void)properties();
}

ProcessWideStore::~ProcessWideStore() {
    delete cleanup;
}

juce::PropertiesFile& ProcessWideStore::properties() {
    if (store == nullptr)
        store = std::make_unique<PreferencesStore>(description);
    if (cleanup == nullptr)
        cleanup = new CleanupAppProps(*this);
    return store->properties();
}

void ProcessWideStore::toolkitShutsDown() {
    cleanup = nullptr;
    if (atShutdown == AtShutdown::destroy)
        store.reset();
    else
        store->properties().saveIfNeeded();
}

} // namespace QM
