// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/GuardedBuffer.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace {

/// Not a number, with a payload that no arithmetic makes.
constexpr std::uint32_t guardBits = 0x7FC5A5A5;

bool areGuards(std::span<const float> row) {
    return std::all_of(row.begin(), row.end(), [](float value) {
        return std::bit_cast<std::uint32_t>(value) == guardBits;
    });
}

} // namespace

GuardedBuffer::GuardedBuffer(std::size_t frames, float value)
    : memory(frames + 2 * guards, std::bit_cast<float>(guardBits)) {
    const std::span<float> inner = samples();
    std::fill(inner.begin(), inner.end(), value);
}

bool GuardedBuffer::isIntact() const {
    const std::span<const float> all(memory);
    return areGuards(all.first(guards)) && areGuards(all.last(guards));
}
