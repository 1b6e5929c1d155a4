// SPDX-License-Identifier: GPL-3.0-or-later
//
// An AAX chunk in a file, as the interface's chunk structure lies in memory. All numbers are
// little-endian:
//
//   offset  field
//        0  bytes of the data, int32
//        4  version, int32
//        8  maker, product, plug-in, chunk identifier, u32 each
//       24  name, 32 bytes
//       56  the data

#pragma once

#include "QMShell/state/AaxChunk.h"

#include <optional>
#include <span>
#include <vector>

/// [any thread]
std::vector<std::byte> aaxChunkFile(const AaxChunk& chunk, FourCharCode plugIn);

/// Whether bytes carry the identifier of our chunk where an AAX chunk has it. [any thread]
bool isAaxChunkFile(std::span<const std::byte> bytes);

/// The chunk's data; nothing when there are fewer than the head says. [any thread]
std::optional<std::span<const std::byte>> aaxChunkData(std::span<const std::byte> file);
