// SPDX-License-Identifier: GPL-3.0-or-later
// The settings record: what a preset file holds and what hosts keep in their projects. A plain
// value; copied and moved freely. How it lies in bytes is in GenericPresetFormat.h.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>

struct QMGenericPreset {
    /// Tells settings records of this kind from others in memory; never written.
    static constexpr FourCharCode kindTag = fourCharCode("GPre");
    /// The variant of every record that is written: a wildcard.
    static constexpr FourCharCode anyVariant = fourCharCode("****");

    std::string name; ///< UTF-8
    std::uint32_t valuesTag = 0;
    FourCharCode manufacturerCode = 0;
    FourCharCode productCode = 0;
    FourCharCode variantCode = anyVariant;
    std::map<FourCharCode, double> values; ///< parameter identifier to plain value
    std::uint64_t uniqueId = 0;            ///< identity of the preset file; 0 when not assigned
    nlohmann::json extension;              ///< state that is no parameter; null when there is none
};
