// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/AaxChunk.h"

#include "QMShell/state/IAaxChunkAdapter.h"
#include "QMShell/state/StateRecordBytes.h"
#include "plugin-model/INoxPlugInState.h"

namespace {

/// First capacity of the record's stream, in bytes.
constexpr std::int32_t initialCapacity = 128;

} // namespace

std::optional<FourCharCode> aaxChunkIdOfIndex(std::int32_t index) {
    if (index != 0)
        return std::nullopt;
    return AaxChunks::state;
}

std::uint32_t aaxChunkSize(FourCharCode identifier, const INoxPlugInState& instance) {
    return identifier == AaxChunks::state ? static_cast<std::uint32_t>(completeStateSize(instance))
                                          : 0;
}

std::optional<AaxChunk> getAaxChunk(FourCharCode identifier, const INoxPlugInState& instance) {
    MemoryStream stream(initialCapacity);
    if (identifier != AaxChunks::state || !writeCompleteState(instance, stream))
        return std::nullopt;
    AaxChunk chunk;
    chunk.data.assign(stream.bytes().begin(), stream.bytes().end());
    return chunk;
}

AaxChunkReading setAaxChunk(FourCharCode identifier, std::span<const std::byte> data,
                            IAaxChunkAdapter& adapter) {
    if (identifier == AaxChunks::whole || identifier == AaxChunks::compare)
        return AaxChunkReading::leftToTheSdk;
    INoxPlugInState* const instance = adapter.chunkInstance();
    if (identifier != AaxChunks::state || data.empty() || instance == nullptr)
        return AaxChunkReading::ignored;
    const std::optional<QMGenericPreset> record = readRecordBytes(data);
    if (!record || !instance->applyStateRecord(*record))
        return AaxChunkReading::ignored;
    adapter.markParametersChanged();
    for (std::int32_t i = 0; i < adapter.parameterCount(); ++i)
        adapter.tellHostParameterValue(i);
    return AaxChunkReading::applied;
}

AaxChunkComparison compareAaxChunk(FourCharCode identifier, std::span<const std::byte> data,
                                   const INoxPlugInState& instance) {
    if (identifier == AaxChunks::whole)
        return AaxChunkComparison::leftToTheSdk;
    if (identifier != AaxChunks::state)
        return AaxChunkComparison::equal;
    const std::optional<QMGenericPreset> record = readRecordBytes(data);
    return !record || instance.equalsStateRecord(*record) ? AaxChunkComparison::equal
                                                          : AaxChunkComparison::different;
}
