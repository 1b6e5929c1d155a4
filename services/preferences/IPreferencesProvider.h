// SPDX-License-Identifier: GPL-3.0-or-later
// Who owns preference groups (an editor), as the preferences panel sees it.
#pragma once

#include "services/preferences/PreferenceGroup.h"

#include <vector>

namespace QM {

class IPreferencesProvider {
public:
    virtual ~IPreferencesProvider() = default;

    /// In the order they are shown in; none where there is nothing to set. The panel writes new
    /// values into their items. [message thread]
    [[nodiscard]] virtual std::vector<PreferenceGroup>& preferenceGroups() = 0;

    /// The panel changed this item of one of the groups: apply it, and save its group.
    /// [message thread]
    virtual void itemChanged(PreferenceItem& item) = 0;

    /// Every item of every group back to its default. The panel rebuilds itself from the groups
    /// afterwards. [message thread]
    virtual void resetToDefaults() = 0;
};

} // namespace QM
