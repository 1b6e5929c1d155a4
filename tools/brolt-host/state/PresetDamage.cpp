// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/PresetDamage.h"

#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"

#include <cstring>

namespace {

std::uint32_t wordAt(std::span<const std::byte> bytes, std::size_t offset) {
    std::uint32_t word = 0;
    std::memcpy(&word, bytes.data() + offset, sizeof word);
    return word;
}

/// Bytes behind the values: type and length of the extension, and the unique identifier.
std::size_t trailerSize(std::uint32_t version) {
    using namespace GenericPresetFormat;
    std::size_t size = 0;
    if (version >= firstVersionWithUniqueId)
        size += sizeof(std::uint64_t);
    if (version >= firstVersionWithExtension)
        size += 2 * sizeof(std::uint32_t);
    return size;
}

} // namespace

std::optional<std::string> presetDamage(std::span<const std::byte> bytes) {
    using namespace GenericPresetFormat;
    MemoryStream stream(bytes);
    const std::optional<GenericPresetHeader> header = readGenericPresetHeader(stream);
    if (!header)
        return "is a damaged preset: it ends too early or its extension cannot be read";

    constexpr std::size_t versionOffset = 4;
    const std::uint32_t version = wordAt(bytes, versionOffset);
    const std::size_t trailer = trailerSize(version);
    const std::size_t left = bytes.size() - static_cast<std::size_t>(stream.tell());
    const std::size_t values = std::size_t{header->valueCount} * valueEntrySize;
    if (left < trailer || left - trailer < values)
        return "is a damaged preset: it ends before its last value";
    if (version >= firstVersionWithExtension) {
        const std::uint32_t type = wordAt(bytes, bytes.size() - trailer);
        if (type != messagePackExtension && type != jsonExtension)
            return "is a damaged preset: its end is missing or of an unknown kind";
    }
    return std::nullopt;
}
