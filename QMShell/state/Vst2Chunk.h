// SPDX-License-Identifier: GPL-3.0-or-later
// The chunk in which a VST 2 host keeps the plug-in's state: made when the host saves, read when it
// restores. How it lies in memory is in Vst2ChunkLayout.h.
#pragma once

#include "QMShell/state/Vst2ChunkLayout.h"

#include <span>

class INoxPlugInState;
class IVst2ChunkAdapter;

/// Bytes of a chunk: its content and the surplus. The instance may be null. [message thread]
[[nodiscard]] std::size_t vst2ChunkSize(std::int32_t parameterCount,
                                        const INoxPlugInState* instance);

enum class Vst2ChunkReading {
    ignored,        ///< not readable; nothing has changed
    recordApplied,  ///< the record was applied, the entries were left alone
    recordDeclined, ///< the record was read, but the instance did not take it
    entriesApplied, ///< there was no readable record; each entry's parameter was set
};

/// Holds the last chunk made, which the host reads after the call.
class Vst2Chunk {
public:
    /// The adapter is not owned and outlives the chunk.
    explicit Vst2Chunk(IVst2ChunkAdapter& chunkAdapter)
        : adapter(chunkAdapter) {}

    ~Vst2Chunk();
    Vst2Chunk(const Vst2Chunk&) = delete;
    Vst2Chunk& operator=(const Vst2Chunk&) = delete;

    /// The current state; valid until the next call. Empty when memory runs out.
    /// [message thread]
    [[nodiscard]] std::span<const std::byte> get();

    /// Restores the state of a chunk. Throws what applying a record throws; the instance is
    /// unchanged then. [message thread]
    Vst2ChunkReading set(std::span<const std::byte> bytes);

private:
    /// False when there is no memory; nothing is held then.
    bool holdBuffer(std::size_t size);
    void freeBuffer();

    IVst2ChunkAdapter& adapter;
    std::byte* buffer = nullptr;
    std::size_t bufferSize = 0;
};
