// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2ChunkDecoder.h"

#include "QMShell/state/ByteSwap.h"

#include <bit>
#include <cstring>

namespace {

using namespace Vst2ChunkLayout;

/// A structure at the beginning of bytes that are known to be long enough.
template <typename Structure>
Structure structureAt(std::span<const std::byte> bytes) {
    Structure structure;
    std::memcpy(&structure, bytes.data(), sizeof structure);
    return structure;
}

void swapHeader(Header& header) {
    for (std::uint32_t* word : {&header.marker, &header.version, &header.productWord,
                                &header.uniqueId, &header.recordBlockFlag, &header.entryCount})
        *word = byteSwapped(*word);
}

Vst2StoredValue storedValue(const Entry& entry, bool swapped) {
    if (!swapped)
        return {entry.identifier, entry.value};
    return {byteSwapped(entry.identifier),
            static_cast<double>(byteSwapped(std::bit_cast<std::uint64_t>(entry.value)))};
}

/// The record of the block at the beginning of bytes; empty unless all of it is there.
std::span<const std::byte> recordOfBlock(std::span<const std::byte> bytes, bool swapped) {
    if (bytes.size() < sizeof(RecordBlock))
        return {};
    auto block = structureAt<RecordBlock>(bytes);
    if (swapped)
        block = {byteSwapped(block.length), byteSwapped(block.tag)};
    const std::span<const std::byte> record = bytes.subspan(sizeof block);
    if (block.tag != recordBlockTag || block.length > record.size())
        return {};
    return record.first(block.length);
}

} // namespace

std::optional<Vst2ChunkContent> decodeVst2Chunk(std::span<const std::byte> bytes) {
    if (bytes.size() < sizeof(Header))
        return std::nullopt;
    Vst2ChunkContent content;
    content.header = structureAt<Header>(bytes);
    const bool swapped = content.header.marker == swappedMarker;
    if (swapped)
        swapHeader(content.header);
    std::span<const std::byte> rest = bytes.subspan(sizeof(Header));
    if (content.header.marker != nativeMarker ||
        content.header.entryCount > rest.size() / sizeof(Entry))
        return std::nullopt;

    content.entries.reserve(content.header.entryCount);
    for (std::uint32_t i = 0; i < content.header.entryCount; ++i) {
        content.entries.push_back(storedValue(structureAt<Entry>(rest), swapped));
        rest = rest.subspan(sizeof(Entry));
    }
    if (content.header.recordBlockFlag != 0)
        content.record = recordOfBlock(rest, swapped);
    return content;
}
