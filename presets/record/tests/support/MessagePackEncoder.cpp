// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/tests/support/MessagePackEncoder.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace packed {
namespace {

/// The head of a value with a length: one byte for short ones, then one with 8 bits of length (0
/// where the format has none), then one with 16.
ByteBuilder head(std::size_t length, std::size_t shortest, unsigned shortCode, unsigned code8,
                 unsigned code16) {
    ByteBuilder builder;
    if (length <= shortest)
        builder.u8(shortCode | static_cast<unsigned>(length));
    else if (length <= 255 && code8 != 0)
        builder.u8(code8).u8(static_cast<unsigned>(length));
    else if (length <= 65535)
        builder.u8(code16).bigU16(static_cast<std::uint32_t>(length));
    else
        throw std::length_error("longer than a fixture needs");
    return builder;
}

} // namespace

Bytes nil() {
    return bytesOf({0xC0});
}

Bytes boolean(bool value) {
    return bytesOf({value ? 0xC3u : 0xC2u});
}

Bytes unsignedInteger(std::uint64_t value) {
    ByteBuilder builder;
    if (value <= 127)
        builder.u8(static_cast<unsigned>(value));
    else if (value <= 255)
        builder.u8(0xCC).u8(static_cast<unsigned>(value));
    else if (value <= 65535)
        builder.u8(0xCD).bigU16(static_cast<std::uint32_t>(value));
    else if (value <= 0xFFFFFFFF)
        builder.u8(0xCE).bigU32(static_cast<std::uint32_t>(value));
    else
        builder.u8(0xCF).bigU64(value);
    return builder.bytes();
}

Bytes integer(std::int64_t value) {
    if (value >= 0)
        return unsignedInteger(static_cast<std::uint64_t>(value));
    ByteBuilder builder;
    const auto bits = static_cast<std::uint64_t>(value);
    if (value >= -32)
        builder.u8(static_cast<unsigned>(bits & 255));
    else if (value >= -128)
        builder.u8(0xD0).u8(static_cast<unsigned>(bits & 255));
    else if (value >= -32768)
        builder.u8(0xD1).bigU16(static_cast<std::uint32_t>(bits & 65535));
    else if (value >= -2147483648LL)
        builder.u8(0xD2).bigU32(static_cast<std::uint32_t>(bits));
    else
        builder.u8(0xD3).bigU64(bits);
    return builder.bytes();
}

Bytes real(double value) {
    ByteBuilder builder;
    const bool inRange = std::fabs(value) <= double{std::numeric_limits<float>::max()};
    if (inRange && double{static_cast<float>(value)} == value)
        builder.u8(0xCA).bigF32(static_cast<float>(value));
    else
        builder.u8(0xCB).bigF64(value);
    return builder.bytes();
}

Bytes text(const std::string& value) {
    return head(value.size(), 31, 0xA0, 0xD9, 0xDA).text(value).bytes();
}

Bytes array(const std::vector<Bytes>& elements) {
    ByteBuilder builder = head(elements.size(), 15, 0x90, 0, 0xDC);
    for (const Bytes& element : elements)
        builder.append(element);
    return builder.bytes();
}

Bytes object(const std::vector<std::pair<std::string, Bytes>>& members) {
    ByteBuilder builder = head(members.size(), 15, 0x80, 0, 0xDE);
    for (const auto& [key, value] : members)
        builder.append(text(key)).append(value);
    return builder.bytes();
}

} // namespace packed
