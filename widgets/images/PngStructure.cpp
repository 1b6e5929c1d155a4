// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/PngStructure.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array<std::uint8_t, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};

// A chunk: length of its content, name, content, check sum.
constexpr std::size_t nameOffset = 4;
constexpr std::size_t contentOffset = 8;
constexpr std::size_t chunkOverhead = 12;

constexpr std::size_t headerLength = 13; ///< of IHDR's content, which begins with the size

std::uint32_t bigEndian(Bytes data, std::size_t offset) {
    return static_cast<std::uint32_t>(data[offset]) << 24 |
           static_cast<std::uint32_t>(data[offset + 1]) << 16 |
           static_cast<std::uint32_t>(data[offset + 2]) << 8 | data[offset + 3];
}

bool isNamed(Bytes chunk, const char* name) {
    return std::memcmp(chunk.data() + nameOffset, name, 4) == 0;
}

/// The first chunk of what is left, check sum included; empty when it is not all there.
Bytes firstChunk(Bytes rest) {
    if (rest.size() < chunkOverhead)
        return {};
    const std::size_t length = bigEndian(rest, 0);
    if (length > rest.size() - chunkOverhead)
        return {};
    return rest.first(length + chunkOverhead);
}

bool endsProperly(Bytes rest) {
    while (true) {
        const Bytes chunk = firstChunk(rest);
        if (chunk.empty())
            return false;
        if (isNamed(chunk, "IEND"))
            return true;
        rest = rest.subspan(chunk.size());
    }
}

} // namespace

bool isPng(Bytes data) {
    return data.size() >= signature.size() &&
           std::equal(signature.begin(), signature.end(), data.begin());
}

std::optional<PngSize> sizeOfWholePng(Bytes data) {
    if (!isPng(data))
        return std::nullopt;
    const Bytes chunks = data.subspan(signature.size());
    const Bytes header = firstChunk(chunks);
    if (header.size() != headerLength + chunkOverhead || !isNamed(header, "IHDR") ||
        !endsProperly(chunks))
        return std::nullopt;
    return PngSize{.width = bigEndian(header, contentOffset),
                   .height = bigEndian(header, contentOffset + 4)};
}
