// SPDX-License-Identifier: GPL-3.0-or-later
// What the VST 2 chunk needs of the adapter it is made and read for. Operations of the host's
// control thread. [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstddef>

class INoxPlugInState;

class IVst2ChunkAdapter {
public:
    virtual ~IVst2ChunkAdapter() = default;

    /// Null before there is an instance.
    [[nodiscard]] virtual INoxPlugInState* chunkInstance() const = 0;

    // Writing.

    /// Bytes of the chunk to be made: see vst2ChunkSize.
    [[nodiscard]] virtual std::size_t chunkSize() const = 0;
    /// Memory for a chunk; null when there is none.
    [[nodiscard]] virtual void* allocateChunk(std::size_t size) = 0;
    virtual void freeChunk(void* chunk) = 0;
    [[nodiscard]] virtual FourCharCode productWord() const = 0;
    [[nodiscard]] virtual FourCharCode vst2UniqueId() const = 0;
    /// Whether a record block follows the entries, as the chunk's header says it.
    [[nodiscard]] virtual std::uint32_t recordBlockFlag() const = 0;
    [[nodiscard]] virtual std::int32_t vst2ParameterCount() const = 0;
    /// The instance's identifier of an index; 0xFFFFFFFF without an instance.
    [[nodiscard]] virtual FourCharCode parameterIdentifier(std::int32_t index) const = 0;
    /// The value the host knows, 0 to 1.
    [[nodiscard]] virtual float vst2Value(std::int32_t index) const = 0;

    // Reading.

    /// The index behind a stored identifier: the instance's, or the number itself where parameters
    /// are addressed by index; -1 when there is none.
    [[nodiscard]] virtual std::int32_t parameterIndex(FourCharCode identifier) const = 0;
    /// The plain value behind a stored one, which is the instance's business. Stored values come as
    /// they lie in the chunk: any number, or none.
    [[nodiscard]] virtual double plainValueOfStored(std::int32_t index, double stored) const = 0;
    virtual void setPlainValue(std::int32_t index, double plain) = 0;
    /// Tells the editor of one restored parameter.
    virtual void parameterRestored(FourCharCode identifier) = 0;
    /// Makes the host ask again for what it shows of the plug-in.
    virtual void refreshHostView() = 0;
};
