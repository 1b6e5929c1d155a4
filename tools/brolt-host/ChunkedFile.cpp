// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ChunkedFile.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace {

/// Sizes from here on mean that the writer did not know.
constexpr std::uint32_t leastUnknownSize = 0x7fff0000U;

constexpr std::size_t nameLength = 4;

struct Words {
    bool bigEndian;

    [[nodiscard]] std::uint32_t read(const char* bytes) const {
        std::uint32_t value = 0;
        for (unsigned i = 0; i < sizeof value; ++i) {
            const unsigned shift = 8 * (bigEndian ? 3 - i : i);
            value |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << shift;
        }
        return value;
    }
};

/// The audio chunk's name and the byte order, by the first twelve bytes.
std::optional<std::pair<std::string_view, Words>> kindOf(std::string_view beginning) {
    const std::string_view container = beginning.substr(0, nameLength);
    const std::string_view form = beginning.substr(2 * nameLength, nameLength);
    if (container == "RIFF" && form == "WAVE")
        return std::pair{std::string_view("data"), Words{false}};
    if (container == "FORM" && (form == "AIFF" || form == "AIFC"))
        return std::pair{std::string_view("SSND"), Words{true}};
    return std::nullopt;
}

} // namespace

std::optional<std::string> truncationOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary | std::ios::ate);
    const auto fileSize = static_cast<std::int64_t>(stream.tellg());
    std::array<char, 3 * nameLength> beginning{};
    stream.seekg(0);
    if (!stream.read(beginning.data(), beginning.size()))
        return std::nullopt;
    const auto kind = kindOf({beginning.data(), beginning.size()});
    if (!kind)
        return std::nullopt;

    const auto& [audioChunk, words] = *kind;
    std::int64_t position = beginning.size();
    std::array<char, 2 * nameLength> header{};
    while (stream.seekg(position) && stream.read(header.data(), header.size())) {
        const std::uint32_t size = words.read(header.data() + nameLength);
        position += static_cast<std::int64_t>(header.size());
        if (std::string_view(header.data(), nameLength) == audioChunk) {
            const std::int64_t held = fileSize - position;
            if (size <= held || size >= leastUnknownSize)
                return std::nullopt;
            return "is damaged: it announces " + std::to_string(size) +
                   " bytes of audio and holds " + std::to_string(held);
        }
        position += size + size % 2; // chunks begin at even places
    }
    return std::nullopt;
}
