// SPDX-License-Identifier: GPL-3.0-or-later
// The chunk in which an AAX host keeps the plug-in's state: one, whose data is the settings record.
// The adapter copies between these structures and the interface's own, and leaves to the SDK's base
// class what is the SDK's.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

class IAaxChunkAdapter;
class INoxPlugInState;

namespace AaxChunks {

constexpr FourCharCode state = fourCharCode("qmps");
/// The SDK's chunk of everything.
constexpr FourCharCode whole = fourCharCode("All ");
/// The SDK's chunk for comparisons.
constexpr FourCharCode compare = fourCharCode("elck");

} // namespace AaxChunks

struct AaxChunk {
    std::int32_t version = 0;
    std::array<char, 32> name{};
    std::vector<std::byte> data;
};

/// Nothing for an index other than 0: there is one chunk. [message thread]
[[nodiscard]] std::optional<FourCharCode> aaxChunkIdOfIndex(std::int32_t index);

/// Bytes of the chunk's data; 0 for an identifier that is not ours. [message thread]
[[nodiscard]] std::uint32_t aaxChunkSize(FourCharCode identifier, const INoxPlugInState& instance);

/// Nothing for an identifier that is not ours, and when memory runs out. [message thread]
[[nodiscard]] std::optional<AaxChunk> getAaxChunk(FourCharCode identifier,
                                                  const INoxPlugInState& instance);

enum class AaxChunkReading {
    applied,      ///< the host was told of every parameter
    ignored,      ///< nothing to read, or nothing readable; nothing has changed
    leftToTheSdk, ///< the SDK's own chunk
};

/// Restores the state of a chunk's data. Throws what applying a record throws; the instance is
/// unchanged then. [message thread]
AaxChunkReading setAaxChunk(FourCharCode identifier, std::span<const std::byte> data,
                            IAaxChunkAdapter& adapter);

enum class AaxChunkComparison {
    equal, ///< also for what cannot be compared, so that the host shows no change
    different,
    leftToTheSdk,
};

/// Compares a chunk's data with the current state. [message thread]
[[nodiscard]] AaxChunkComparison compareAaxChunk(FourCharCode identifier,
                                                 std::span<const std::byte> data,
                                                 const INoxPlugInState& instance);
