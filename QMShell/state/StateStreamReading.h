// SPDX-License-Identifier: GPL-3.0-or-later
// Reading from a host's stream whose lengths cannot be trusted: memory is taken for bytes that have
// arrived, never for bytes that were promised.
#pragma once

#include "QMShell/state/IStateByteStream.h"

#include <optional>
#include <vector>

/// Exactly size bytes into the destination; false when the stream holds fewer. [message thread]
[[nodiscard]] bool readExactly(IStateByteStream& stream, std::size_t size, void* destination);

/// Exactly size bytes; nothing when the stream holds fewer. [message thread]
[[nodiscard]] std::optional<std::vector<std::byte>> readExactly(IStateByteStream& stream,
                                                                std::size_t size);

/// Everything from the position to the end. [message thread]
[[nodiscard]] std::vector<std::byte> readRemaining(IStateByteStream& stream);
