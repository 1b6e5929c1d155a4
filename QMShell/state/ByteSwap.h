// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers of the other byte order.
#pragma once

#include <cstdint>

/// [any thread]
[[nodiscard]] constexpr std::uint32_t byteSwapped(std::uint32_t value) {
    return value >> 24 | (value >> 8 & 0xFF00u) | (value << 8 & 0xFF0000u) | value << 24;
}

/// [any thread]
[[nodiscard]] constexpr std::uint64_t byteSwapped(std::uint64_t value) {
    return std::uint64_t{byteSwapped(static_cast<std::uint32_t>(value))} << 32 |
           byteSwapped(static_cast<std::uint32_t>(value >> 32));
}
