// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes of fixtures, put together number by number. Works by shifting, so that it says the same on
// every machine and shares nothing with the code under test.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::byte>;

class ByteBuilder {
public:
    ByteBuilder& u8(unsigned value);
    ByteBuilder& u32(std::uint32_t value);
    ByteBuilder& u64(std::uint64_t value);
    /// IEEE-754 binary64.
    ByteBuilder& f64(double value);

    ByteBuilder& bigU16(std::uint32_t value);
    ByteBuilder& bigU32(std::uint32_t value);
    ByteBuilder& bigU64(std::uint64_t value);
    /// IEEE-754 binary32 and binary64.
    ByteBuilder& bigF32(float value);
    ByteBuilder& bigF64(double value);

    /// The characters as they stand.
    ByteBuilder& text(std::string_view characters);
    ByteBuilder& zeros(std::size_t count);
    ByteBuilder& append(std::span<const std::byte> bytes);

    [[nodiscard]] const Bytes& bytes() const { return built; }

private:
    Bytes built;
};

/// Bytes from numbers 0 to 255.
[[nodiscard]] Bytes bytesOf(std::initializer_list<unsigned> values);

/// Bytes from pairs of hexadecimal digits; blanks and line ends do not count.
[[nodiscard]] Bytes bytesOfHex(std::string_view digits);

/// The first count bytes.
[[nodiscard]] Bytes firstBytes(const Bytes& bytes, std::size_t count);

/// The same bytes with one bit turned over; bit 0 is the lowest of the first byte.
[[nodiscard]] Bytes withBitFlipped(const Bytes& bytes, std::size_t bit);
