// SPDX-License-Identifier: GPL-3.0-or-later
// How a VST 2 chunk lies in memory and in hosts' projects: a header, one entry for each parameter,
// and the settings record in a block of its own. The numbers are in the byte order of the machine
// that wrote the chunk, which the marker tells; the record's own bytes are little-endian always.
//
// A chunk of ours is longer than its content by 16 bytes without an instance and 20 with one. The
// surplus stays: hosts compare sizes.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <array>
#include <cstddef>
#include <limits>
#include <type_traits>

namespace Vst2ChunkLayout {

/// "idne" in memory when a little-endian machine wrote it.
constexpr std::uint32_t nativeMarker = 0x656E6469;
/// The native marker of the other byte order.
constexpr std::uint32_t swappedMarker = 0x69646E65;
constexpr std::uint32_t writtenVersion = 1;
constexpr FourCharCode recordBlockTag = fourCharCode("qmps");
/// Identifier of an entry that was written without an instance.
constexpr FourCharCode noIdentifier = 0xFFFFFFFF;

struct Header {
    std::array<std::byte, 64> reserved; ///< zeros
    std::uint32_t marker;
    std::uint32_t version;
    FourCharCode productWord;
    FourCharCode uniqueId;         ///< the plug-in's VST 2 identifier
    std::uint32_t recordBlockFlag; ///< not 0 when a record block follows the entries
    std::uint32_t entryCount;
};

struct Entry {
    FourCharCode identifier;
    std::uint32_t zero;
    double value; ///< the VST 2 value, widened from single precision
};

struct RecordBlock {
    std::uint32_t length; ///< bytes of the record behind; 0 without an instance
    FourCharCode tag;
};

static_assert(sizeof(Header) == 88 && std::is_trivially_copyable_v<Header>);
static_assert(offsetof(Header, marker) == 64);
static_assert(offsetof(Header, version) == 68);
static_assert(offsetof(Header, productWord) == 72);
static_assert(offsetof(Header, uniqueId) == 76);
static_assert(offsetof(Header, recordBlockFlag) == 80);
static_assert(offsetof(Header, entryCount) == 84);
static_assert(sizeof(Entry) == 16 && std::is_trivially_copyable_v<Entry>);
static_assert(offsetof(Entry, zero) == 4);
static_assert(offsetof(Entry, value) == 8);
static_assert(sizeof(RecordBlock) == 8 && std::is_trivially_copyable_v<RecordBlock>);
static_assert(offsetof(RecordBlock, tag) == 4);
static_assert(std::numeric_limits<double>::is_iec559);

} // namespace Vst2ChunkLayout
