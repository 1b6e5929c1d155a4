// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceGroupStorage.h"

#include "services/preferences/PreferencesStores.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <variant>

namespace QM {
namespace {

juce::String toJuce(const std::string& text) {
    return juce::String::fromUTF8(text.data(), static_cast<int>(text.size()));
}

juce::String storageKey(const std::string& keyPrefix, const PreferenceItem& item) {
    return toJuce(keyPrefix + "_" + item.key());
}

/// What the store holds under a key, by the type of the current value.
struct Reader {
    const juce::PropertySet& store;
    const juce::String& key;

    PreferenceValue operator()(bool current) const { return store.getBoolValue(key, current); }

    PreferenceValue operator()(std::int32_t current) const {
        return store.getIntValue(key, current);
    }

    PreferenceValue operator()(float current) const {
        const double stored = store.getDoubleValue(key, static_cast<double>(current));
        if (!std::isfinite(stored))
            return current;
        // The text may have been rounded to just above the greatest float; converting what lies
        // outside is undefined.
        constexpr double greatest = std::numeric_limits<float>::max();
        return static_cast<float>(std::clamp(stored, -greatest, greatest));
    }

    PreferenceValue operator()(const std::string&) const {
        return store.getValue(key).toStdString();
    }

    PreferenceValue operator()(PreferenceColour current) const {
        const juce::String text = store.getValue(key);
        const int argb = text.startsWithChar('#')
                             ? text.substring(1).getHexValue32()
                             : store.getIntValue(key, static_cast<int>(current.argb));
        return PreferenceColour{static_cast<std::uint32_t>(argb)};
    }
};

/// What to store for a value.
struct Writer {
    juce::var operator()(bool value) const { return value; }

    juce::var operator()(std::int32_t value) const { return value; }

    juce::var operator()(float value) const { return static_cast<double>(value); }

    juce::var operator()(const std::string& value) const { return toJuce(value); }

    juce::var operator()(PreferenceColour value) const {
        return "#" + juce::String::toHexString(value.argb);
    }
};

} // namespace

void loadGroup(const juce::PropertySet& store, const std::string& keyPrefix,
               PreferenceGroup& group) {
    for (PreferenceItem& item : group.items()) {
        const juce::String key = storageKey(keyPrefix, item);
        item.setValue(std::visit(Reader{store, key}, item.value()));
    }
}

void saveGroup(juce::PropertySet& store, const std::string& keyPrefix,
               const PreferenceGroup& group) {
    for (const PreferenceItem& item : group.items())
        store.setValue(storageKey(keyPrefix, item), std::visit(Writer{}, item.value()));
}

void loadGroup(const std::string& keyPrefix, PreferenceGroup& group) {
    loadGroup(shellStore(), keyPrefix, group);
}

void saveGroup(const std::string& keyPrefix, const PreferenceGroup& group) {
    saveGroup(shellStore(), keyPrefix, group);
}

} // namespace QM
