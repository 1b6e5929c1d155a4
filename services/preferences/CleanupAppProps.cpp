// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/CleanupAppProps.h"

#include "services/preferences/ProcessWideStore.h"

namespace QM {

CleanupAppProps::CleanupAppProps(ProcessWideStore& storeToTell)
    : store(storeToTell) {}

CleanupAppProps::~CleanupAppProps() {
    store.toolkitShutsDown();
}

} // namespace QM
