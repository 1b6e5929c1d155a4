// SPDX-License-Identifier: GPL-3.0-or-later
// Hash of a preference's key for maps that find things by it: FNV-1a, 64 bits. The standard
// library's differs from platform to platform.
#pragma once

#include <cstdint>
#include <string_view>

struct PreferenceKeyHash {
    static constexpr std::uint64_t offsetBasis = 0xcbf29ce484222325;
    static constexpr std::uint64_t prime = 0x100000001b3;

    /// [any thread]
    [[nodiscard]] constexpr std::uint64_t operator()(std::string_view key) const {
        std::uint64_t hash = offsetBasis;
        for (const char character : key)
            hash = (hash ^ static_cast<std::uint8_t>(character)) * prime;
        return hash;
    }
};
