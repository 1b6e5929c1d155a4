// SPDX-License-Identifier: GPL-3.0-or-later
// The five kinds of value a preference item may have. Their numbers and their order in the variant
// are the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

namespace QM {

enum class PreferenceType : std::int32_t {
    boolean = 0,
    integer = 1, ///< choices too
    floatingPoint = 2,
    text = 3, ///< UTF-8
    colour = 4,
};

/// 0xAARRGGBB. A type of its own, so that a colour is not taken for a number.
struct PreferenceColour {
    std::uint32_t argb = 0;

    bool operator==(const PreferenceColour&) const = default;
};

using PreferenceValue = std::variant<bool, std::int32_t, float, std::string, PreferenceColour>;

/// [any thread]
[[nodiscard]] inline PreferenceType typeOf(const PreferenceValue& value) {
    return static_cast<PreferenceType>(value.index());
}

template <PreferenceType type>
using PreferenceValueOf =
    std::variant_alternative_t<static_cast<std::size_t>(type), PreferenceValue>;

static_assert(std::is_same_v<PreferenceValueOf<PreferenceType::boolean>, bool>);
static_assert(std::is_same_v<PreferenceValueOf<PreferenceType::integer>, std::int32_t>);
static_assert(std::is_same_v<PreferenceValueOf<PreferenceType::floatingPoint>, float>);
static_assert(std::is_same_v<PreferenceValueOf<PreferenceType::text>, std::string>);
static_assert(std::is_same_v<PreferenceValueOf<PreferenceType::colour>, PreferenceColour>);
static_assert(std::variant_size_v<PreferenceValue> == 5);

} // namespace QM
