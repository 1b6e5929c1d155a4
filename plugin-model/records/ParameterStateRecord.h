// SPDX-License-Identifier: GPL-3.0-or-later
// The flat byte form of an instance's values, in the order of its parameters:
//
//   offset  content
//        0  length of the whole record in bytes, u32
//        4  version, u32
//        8  product-side code: the plug-in type's, u32
//       12  maker, u32
//       16  byte order, u32; not 0 when every field is in the other order than the reader's
//       20  0, u32; nothing from here to 276
//      276  count of values, u32
//      280  the values, f64
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace QM {

struct ParameterStateRecord {
    static constexpr std::size_t countOffset = 276;
    static constexpr std::size_t valuesOffset = 280;

    std::uint32_t version = 0;
    FourCharCode typeCode = 0;
    FourCharCode manufacturerCode = 0;
    std::vector<double> values;

    [[nodiscard]] std::vector<std::byte> bytes() const;

    /// Takes the other byte order as well. Nothing for bytes that are shorter than the record says
    /// it is, or a record that is too short for its values. [any thread]
    [[nodiscard]] static std::optional<ParameterStateRecord> of(std::span<const std::byte> bytes);
};

} // namespace QM
