// SPDX-License-Identifier: GPL-3.0-or-later
// The looks that a user has chosen for a product's editors, as one editor knows them: the group,
// the store it is kept in, and which of its values the editor has not shown yet. [message thread]
#pragma once

#include "widgets/ui/appearance/AppearanceGroup.h"
#include "widgets/ui/appearance/PreferenceKeyHash.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class AppearancePreferences {
public:
    /// At their defaults. The code is what the store's keys begin with; nothing is read or kept
    /// while it is empty. It must outlive this.
    AppearancePreferences(const AppearanceOffers& offers, const std::string& productCode);

    /// One group, the same for good.
    [[nodiscard]] std::vector<QM::PreferenceGroup>& groups() { return groups_; }

    /// Null for a key that this product does not offer.
    [[nodiscard]] QM::PreferenceItem* find(std::string_view key);

    [[nodiscard]] bool isKept() const { return !code.empty(); }

    /// Every item that the store has.
    void load();
    /// What somebody has put into one item, and everything else as the store has it: another editor
    /// may have changed that a moment ago.
    void keep(QM::PreferenceItem& changed);
    void resetToDefaults();

    /// Those with another value than when they were taken last; the first time, all.
    [[nodiscard]] std::vector<const QM::PreferenceItem*> takeChanged();

    // The background mode, kept twice: as an item, and under a key of its own.

    /// What is under its key; nothing where that is missing.
    [[nodiscard]] std::optional<std::int32_t> keptBackgroundMode() const;
    /// Under its key, and in the item.
    void keepBackgroundMode(std::int32_t mode);
    /// The item alone. An item that said so before is not written.
    void setBackgroundItem(std::int32_t mode);

private:
    [[nodiscard]] QM::PreferenceGroup& group() { return groups_.front(); }

    void save() const;

    const std::string& code;
    std::vector<QM::PreferenceGroup> groups_;
    std::unordered_map<std::string, std::size_t, PreferenceKeyHash> places; ///< in the group
    std::vector<std::optional<QM::PreferenceValue>> taken; ///< the group's items, value by value
};
