// SPDX-License-Identifier: GPL-3.0-or-later
// What several places ask of a record's extension document.
#pragma once

#include <nlohmann/json.hpp>

namespace QM {

/// The member with the mappings of controllers, which travel with the state.
constexpr const char* controllerMapKey = "parameterMap";

/// Null, or an object or array without members. [any thread]
[[nodiscard]] inline bool holdsNothing(const nlohmann::json& document) {
    return document.is_null() || (document.is_structured() && document.empty());
}

} // namespace QM
