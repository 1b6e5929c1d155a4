// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/RecordChunkAdapter.h"

#include "QMShell/state/Vst2Chunk.h"
#include "brolt/model/QMBrolt_ProductCodes.h"

#include <cstdlib>

std::size_t RecordChunkAdapter::chunkSize() const {
    return vst2ChunkSize(vst2ParameterCount(), &state);
}

void* RecordChunkAdapter::allocateChunk(std::size_t size) {
    return std::calloc(size, 1);
}

void RecordChunkAdapter::freeChunk(void* chunk) {
    std::free(chunk);
}

FourCharCode RecordChunkAdapter::productWord() const {
    return QMBrolt::productCode;
}

FourCharCode RecordChunkAdapter::vst2UniqueId() const {
    return QMBrolt::vst2UniqueId;
}

std::int32_t RecordChunkAdapter::vst2ParameterCount() const {
    return parameters.parameterCount();
}

FourCharCode RecordChunkAdapter::parameterIdentifier(std::int32_t index) const {
    return parameters.idOfIndex(index);
}

float RecordChunkAdapter::vst2Value(std::int32_t index) const {
    const auto entry = state.record.values.find(parameters.idOfIndex(index));
    const double plain =
        entry != state.record.values.end() ? entry->second : parameters.defaultValue(index);
    return static_cast<float>(parameters.plainToNormalised(index, plain));
}

std::int32_t RecordChunkAdapter::parameterIndex(FourCharCode identifier) const {
    return parameters.indexOfID(identifier);
}

void RecordChunkAdapter::setPlainValue(std::int32_t index, double plain) {
    if (index >= 0 && index < parameters.parameterCount())
        state.record.values[parameters.idOfIndex(index)] = plain;
}

void RecordChunkAdapter::restoreParameter(FourCharCode identifier, double storedValue) {
    setPlainValue(parameterIndex(identifier), storedValue);
}
