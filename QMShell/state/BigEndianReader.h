// SPDX-License-Identifier: GPL-3.0-or-later
// Reads big-endian numbers from bytes that may end anywhere. A sequence of reads is checked once at
// its end: from the first that goes too far on, all fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

class BigEndianReader {
public:
    explicit BigEndianReader(std::span<const std::byte> bytes)
        : rest(bytes) {}

    /// 0 on failure. [any thread]
    std::uint32_t word();

    /// 0 on failure. [any thread]
    std::int32_t number() { return static_cast<std::int32_t>(word()); }

    /// Single precision; 0 on failure. [any thread]
    float real();
    /// The next bytes; empty on failure, which a negative size is. [any thread]
    std::span<const std::byte> bytes(std::int64_t size);

    [[nodiscard]] std::size_t remaining() const { return rest.size(); }

    [[nodiscard]] bool failed() const { return tooShort; }

private:
    std::span<const std::byte> rest;
    bool tooShort = false;
};
