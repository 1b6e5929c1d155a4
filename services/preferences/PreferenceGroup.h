// SPDX-License-Identifier: GPL-3.0-or-later
// A named, ordered list of preference items: what the preferences panel shows under one heading and
// what is saved together.
#pragma once

#include "services/preferences/PreferenceItem.h"

#include <string>
#include <string_view>
#include <vector>

namespace QM {

class PreferenceGroup {
public:
    /// [any thread]
    explicit PreferenceGroup(std::string name, std::vector<PreferenceItem> items = {});

    [[nodiscard]] const std::string& name() const { return name_; }

    /// In the order they are shown in. [message thread]
    [[nodiscard]] std::vector<PreferenceItem>& items() { return items_; }

    [[nodiscard]] const std::vector<PreferenceItem>& items() const { return items_; }

    /// The item with this key, or null. [message thread]
    [[nodiscard]] PreferenceItem* find(std::string_view key);
    [[nodiscard]] const PreferenceItem* find(std::string_view key) const;

    /// Every item. [message thread]
    void resetToDefaults();

private:
    std::string name_;
    std::vector<PreferenceItem> items_;
};

} // namespace QM
