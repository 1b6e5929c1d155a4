// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/appearance/ShellStoreListener.h"

#include "services/preferences/PreferencesStores.h"

#include <utility>

ShellStoreListener::ShellStoreListener(std::function<void()> whatThen)
    : changed(std::move(whatThen)) {
    // The store outlives the toolkit. A notice that was on its way when the toolkit was shut down
    // is lost, and the store, which waits for it, would send no other.
    QM::shellStore().dispatchPendingMessages();
    QM::shellStore().addChangeListener(this);
}

ShellStoreListener::~ShellStoreListener() {
    QM::shellStore().removeChangeListener(this);
}
