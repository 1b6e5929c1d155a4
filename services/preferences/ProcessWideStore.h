// SPDX-License-Identifier: GPL-3.0-or-later
// A preference store that the whole process shares, from its first use until the library is
// unloaded. It outlives the toolkit: a host that closes its last instance shuts the toolkit down
// and may start it again for the next one.
//
// At the toolkit's shutdown, pending changes are written, and a store that is told so is destroyed
// (the next use opens it again). Writing there is a must for the others too: it stops the saving
// timer, which the toolkit's new timer thread would know nothing of.
//
// Used on the message thread only, and made there without a lock.
#pragma once

#include "services/preferences/PreferencesStore.h"

#include <memory>

namespace QM {

class CleanupAppProps;

class ProcessWideStore {
public:
    enum class AtShutdown { save, destroy };

    /// Opens the store. [message thread]
    ProcessWideStore(const PreferencesStoreDescription& storeDescription, AtShutdown whatThen);

    /// Writes pending changes, whether the toolkit was shut down or not. [message thread]
    ~ProcessWideStore();

    ProcessWideStore(const ProcessWideStore&) = delete;
    ProcessWideStore& operator=(const ProcessWideStore&) = delete;

    /// The set that everybody shares. A reference lasts until the toolkit's shutdown at least; ask
    /// again rather than keeping it longer. [message thread]
    [[nodiscard]] juce::PropertiesFile& properties();

    /// Called by the clean-up object as it goes. [message thread]
    void toolkitShutsDown();

private:
    const PreferencesStoreDescription& description;
    const AtShutdown atShutdown;
    std::unique_ptr<PreferencesStore> store;
    CleanupAppProps* cleanup = nullptr; ///< owned by the toolkit; null when it was shut down
};

} // namespace QM
