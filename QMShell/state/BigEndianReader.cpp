// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/BigEndianReader.h"

#include <bit>

std::span<const std::byte> BigEndianReader::bytes(std::int64_t size) {
    if (tooShort || size < 0 || static_cast<std::uint64_t>(size) > rest.size()) {
        tooShort = true;
        return {};
    }
    const auto count = static_cast<std::size_t>(size);
    const std::span<const std::byte> taken = rest.first(count);
    rest = rest.subspan(count);
    return taken;
}

std::uint32_t BigEndianReader::word() {
    std::uint32_t value = 0;
    for (const std::byte byte : bytes(sizeof value))
        value = value << 8 | std::to_integer<std::uint32_t>(byte);
    return value;
}

float BigEndianReader::real() {
    return std::bit_cast<float>(word());
}
