// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/tests/support/ByteBuilder.h"

#include <bit>
#include <string>

ByteBuilder& ByteBuilder::u8(unsigned value) {
    built.push_back(static_cast<std::byte>(value));
    return *this;
}

ByteBuilder& ByteBuilder::u32(std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8)
        u8(value >> shift & 255);
    return *this;
}

ByteBuilder& ByteBuilder::u64(std::uint64_t value) {
    return u32(static_cast<std::uint32_t>(value)).u32(static_cast<std::uint32_t>(value >> 32));
}

ByteBuilder& ByteBuilder::f64(double value) {
    return u64(std::bit_cast<std::uint64_t>(value));
}

ByteBuilder& ByteBuilder::bigU16(std::uint32_t value) {
    return u8(value >> 8 & 255).u8(value & 255);
}

ByteBuilder& ByteBuilder::bigU32(std::uint32_t value) {
    return bigU16(value >> 16).bigU16(value);
}

ByteBuilder& ByteBuilder::bigU64(std::uint64_t value) {
    return bigU32(static_cast<std::uint32_t>(value >> 32))
        .bigU32(static_cast<std::uint32_t>(value));
}

ByteBuilder& ByteBuilder::bigF32(float value) {
    return bigU32(std::bit_cast<std::uint32_t>(value));
}

ByteBuilder& ByteBuilder::bigF64(double value) {
    return bigU64(std::bit_cast<std::uint64_t>(value));
}

ByteBuilder& ByteBuilder::text(std::string_view characters) {
    for (const char character : characters)
        u8(static_cast<unsigned char>(character));
    return *this;
}

ByteBuilder& ByteBuilder::zeros(std::size_t count) {
    built.resize(built.size() + count);
    return *this;
}

ByteBuilder& ByteBuilder::append(std::span<const std::byte> bytes) {
    built.insert(built.end(), bytes.begin(), bytes.end());
    return *this;
}

Bytes bytesOf(std::initializer_list<unsigned> values) {
    ByteBuilder builder;
    for (const unsigned value : values)
        builder.u8(value);
    return builder.bytes();
}

Bytes bytesOfHex(std::string_view digits) {
    ByteBuilder builder;
    std::string pair;
    for (const char digit : digits) {
        if (digit == ' ' || digit == '\n')
            continue;
        pair += digit;
        if (pair.size() == 2) {
            builder.u8(static_cast<unsigned>(std::stoul(pair, nullptr, 16)));
            pair.clear();
        }
    }
    return builder.bytes();
}

Bytes firstBytes(const Bytes& bytes, std::size_t count) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

Bytes withBitFlipped(const Bytes& bytes, std::size_t bit) {
    Bytes flipped = bytes;
    flipped[bit / 8] ^= static_cast<std::byte>(1U << bit % 8);
    return flipped;
}
