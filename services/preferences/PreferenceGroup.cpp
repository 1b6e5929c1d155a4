// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceGroup.h"

#include <algorithm>
#include <utility>

namespace QM {

PreferenceGroup::PreferenceGroup(std::string name, std::vector<PreferenceItem> items)
    : name_(std::move(name))
    , items_(std::move(items)) {}

const PreferenceItem* PreferenceGroup::find(std::string_view key) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [key](const auto& item) { return item.key() == key; });
    return found == items_.end() ? nullptr : &*found;
}

PreferenceItem* PreferenceGroup::find(std::string_view key) {
    return const_cast<PreferenceItem*>(std::as_const(*this).find(key));
}

void PreferenceGroup::resetToDefaults() {
    for (PreferenceItem& item : items_)
        item.resetToDefault();
}

} // namespace QM
