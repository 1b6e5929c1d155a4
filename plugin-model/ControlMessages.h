// SPDX-License-Identifier: GPL-3.0-or-later
// The control messages a processing host or a flusher posts to an instance's message entry. The
// payload is a memory image: the code first, a pointer eight bytes in.
#pragma once

#include <cstddef>
#include <cstdint>

namespace NoxMessage {
/// Copy the analysis snapshot, computed from the live state, to the buffer.
constexpr std::uint32_t analysisRequest = 0x1000000;
/// Zero the output meters. No further payload is read.
constexpr std::uint32_t meterReset = 0x1000001;
/// Transfer analysis data into the buffer (channel count, frame count, samples).
constexpr std::uint32_t analysisTransfer = 0x1000002;
} // namespace NoxMessage

/// Payload of the messages that carry a buffer.
struct NoxBufferMessage {
    std::uint32_t code;
    std::uint32_t flag; ///< 1 for an analysis transfer, else 0
    void* buffer;
};

static_assert(sizeof(NoxBufferMessage) == 16);
static_assert(offsetof(NoxBufferMessage, code) == 0);
static_assert(offsetof(NoxBufferMessage, buffer) == 8);
