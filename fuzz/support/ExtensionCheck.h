// SPDX-License-Identifier: GPL-3.0-or-later
// What an extension document from outside may do, whatever it is.
#pragma once

#include <nlohmann/json.hpp>

/// Applies a record with the document to the product's instance: it is taken whole, or the JSON
/// library's exception comes and nothing has changed.
void requireHarmless(const nlohmann::json& document);
