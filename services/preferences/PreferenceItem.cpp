// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceItem.h"

#include <cmath>
#include <utility>

namespace QM {

PreferenceItem::PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue)
    : key_(std::move(key))
    , label_(std::move(label))
    , default_(std::move(defaultValue))
    , value_(default_) {}

PreferenceItem::PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue,
                               std::vector<PreferenceOption> options)
    : PreferenceItem(std::move(key), std::move(label), std::move(defaultValue)) {
    options_ = std::move(options);
}

PreferenceItem::PreferenceItem(std::string key, std::string label, PreferenceValue defaultValue,
                               PreferenceRange range)
    : PreferenceItem(std::move(key), std::move(label), std::move(defaultValue)) {
    range_ = range;
}

bool PreferenceItem::setValue(PreferenceValue value) {
    if (typeOf(value) != type())
        return false;
    if (const auto* const number = std::get_if<float>(&value);
        number != nullptr && !std::isfinite(*number))
        return false;
    value_ = std::move(value);
    return true;
}

} // namespace QM
