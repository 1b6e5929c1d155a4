// SPDX-License-Identifier: GPL-3.0-or-later
// A VST 2 chunk of either byte order, read whole before anybody acts on a part of it.
#pragma once

#include "QMShell/state/Vst2ChunkLayout.h"

#include <optional>
#include <span>
#include <vector>

struct Vst2StoredValue {
    FourCharCode identifier = 0;
    double value = 0.0;
};

struct Vst2ChunkContent {
    Vst2ChunkLayout::Header header; ///< in this machine's byte order, the marker included
    std::vector<Vst2StoredValue> entries;
    /// Bytes of the settings record, within the chunk's own; empty when there is no record block,
    /// or none that is whole.
    std::span<const std::byte> record;
};

/// Nothing for an unknown marker and for a chunk that ends before its last entry.
///
/// Values of the other byte order are not the doubles that were written: their swapped bits are
/// taken for an unsigned number, and that for the value. It is how such chunks have always been
/// read, and what projects on both kinds of machine rely on. [any thread]
[[nodiscard]] std::optional<Vst2ChunkContent> decodeVst2Chunk(std::span<const std::byte> bytes);
