// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/appearance/AppearancePreferences.h"

#include "services/preferences/EditorPreferences.h"
#include "services/preferences/PreferenceGroupStorage.h"
#include "services/preferences/PreferencesStores.h"
#include "widgets/ui/appearance/AppearanceKeys.h"

AppearancePreferences::AppearancePreferences(const AppearanceOffers& offers,
                                             const std::string& productCode)
    : code(productCode)
    , groups_{appearanceGroup(offers)}
    , taken(group().items().size()) {
    for (const QM::PreferenceItem& item : group().items())
        places.emplace(item.key(), places.size());
}

QM::PreferenceItem* AppearancePreferences::find(std::string_view key) {
    const auto found = places.find(std::string(key));
    return found == places.end() ? nullptr : &group().items()[found->second];
}

void AppearancePreferences::load() {
    if (isKept())
        QM::loadGroup(code, group());
}

void AppearancePreferences::save() const {
    if (isKept())
        QM::saveGroup(code, groups_.front());
}

void AppearancePreferences::keep(QM::PreferenceItem& changed) {
    const QM::PreferenceValue value = changed.value();
    load();
    changed.setValue(value);
    save();
}

void AppearancePreferences::resetToDefaults() {
    group().resetToDefaults();
    save();
}

std::vector<const QM::PreferenceItem*> AppearancePreferences::takeChanged() {
    std::vector<const QM::PreferenceItem*> changed;
    for (std::size_t place = 0; place < taken.size(); ++place) {
        const QM::PreferenceItem& item = group().items()[place];
        if (taken[place] == item.value())
            continue;
        taken[place] = item.value();
        changed.push_back(&item);
    }
    return changed;
}

std::optional<std::int32_t> AppearancePreferences::keptBackgroundMode() const {
    if (!isKept() || !QM::shellStore().containsKey(juce::String(QM::backgroundModeKey(code))))
        return {};
    return QM::readBackgroundMode(code);
}

void AppearancePreferences::keepBackgroundMode(std::int32_t mode) {
    if (isKept())
        QM::writeBackgroundMode(code, mode);
    setBackgroundItem(mode);
}

void AppearancePreferences::setBackgroundItem(std::int32_t mode) {
    const std::size_t place = places.at(AppearanceKeys::background);
    QM::PreferenceItem& item = group().items()[place];
    if (item.value() == QM::PreferenceValue(mode) || !item.setValue(mode))
        return;
    taken[place] = item.value();
    // Alone: of the others, the store may have what this editor has not heard of yet.
    if (isKept())
        QM::saveGroup(code, QM::PreferenceGroup(group().name(), {item}));
}
