// SPDX-License-Identifier: GPL-3.0-or-later
// MessagePack of small documents, from the published format: each function answers the bytes of one
// value, so that a document is written as it nests. Numbers take the shortest form that holds them,
// as packers do. Members of objects come out in the order given; the product's come out sorted.
#pragma once

#include "presets/record/tests/support/ByteBuilder.h"

#include <string>
#include <utility>

namespace packed {

[[nodiscard]] Bytes nil();
[[nodiscard]] Bytes boolean(bool value);
[[nodiscard]] Bytes integer(std::int64_t value);
/// Above the signed range too.
[[nodiscard]] Bytes unsignedInteger(std::uint64_t value);
/// Single precision where that loses nothing.
[[nodiscard]] Bytes real(double value);
/// Up to 65535 bytes.
[[nodiscard]] Bytes text(const std::string& value);
/// Up to 65535 elements.
[[nodiscard]] Bytes array(const std::vector<Bytes>& elements);
/// Up to 65535 members.
[[nodiscard]] Bytes object(const std::vector<std::pair<std::string, Bytes>>& members);

} // namespace packed
