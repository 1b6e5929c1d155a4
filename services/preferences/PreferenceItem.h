// SPDX-License-Identifier: GPL-3.0-or-later
// One row of the preferences panel: a key to store it under, a label, a current and a default
// value. The default value decides the type, for good. What the panel offers goes with it: options
// to choose from, or a range. Neither keeps other values out.
#pragma once

#include "services/preferences/PreferenceOption.h"
#include "services/preferences/PreferenceRange.h"
#include "services/preferences/PreferenceValue.h"

#include <optional>
#include <vector>

namespace QM {

class PreferenceItem {
public:
    /// Starts at its default. [any thread]
    PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue);
    /// With what a user chooses from, in this order.
    PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue,
                   std::vector<PreferenceOption> options);
    /// With what a user may set a number to.
    PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue,
                   PreferenceRange range);

    /// Unique in its group; never shown. [any thread]
    [[nodiscard]] const std::string& key() const { return key_; }

    [[nodiscard]] const std::string& label() const { return label_; }

    [[nodiscard]] PreferenceType type() const { return typeOf(default_); }

    [[nodiscard]] const PreferenceValue& value() const { return value_; }

    [[nodiscard]] const PreferenceValue& defaultValue() const { return default_; }

    /// Empty where there is nothing to choose from.
    [[nodiscard]] const std::vector<PreferenceOption>& options() const { return options_; }

    /// None where nobody named one.
    [[nodiscard]] const std::optional<PreferenceRange>& range() const { return range_; }

    /// The value where the item has that type; else false, 0, 0.0, the empty text or a colour with
    /// four zero channels. [message thread]
    [[nodiscard]] bool booleanValue() const { return valueAs<bool>(); }

    [[nodiscard]] std::int32_t integerValue() const { return valueAs<std::int32_t>(); }

    [[nodiscard]] float floatValue() const { return valueAs<float>(); }

    [[nodiscard]] std::string textValue() const { return valueAs<std::string>(); }

    [[nodiscard]] PreferenceColour colourValue() const { return valueAs<PreferenceColour>(); }

    /// Takes a value of the item's own type; any other, and a float that is not finite, is refused.
    /// Answers whether it was taken. [message thread]
    bool setValue(PreferenceValue value);

    /// [message thread]
    void resetToDefault() { value_ = default_; }

private:
    template <typename Value>
    [[nodiscard]] Value valueAs() const {
        const auto* const value = std::get_if<Value>(&value_);
        return value == nullptr ? Value{} : *value;
    }

    std::string key_;
    std::string label_;
    PreferenceValue default_;
    PreferenceValue value_;
    std::vector<PreferenceOption> options_;
    std::optional<PreferenceRange> range_;
};

} // namespace QM
