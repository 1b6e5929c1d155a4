// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/support/InstanceVst2Adapter.h"

#include "QMShell/state/Vst2Chunk.h"

#include <cstdlib>

INoxPlugInState* InstanceVst2Adapter::chunkInstance() const {
    return &plugIn;
}

std::size_t InstanceVst2Adapter::chunkSize() const {
    return vst2ChunkSize(vst2ParameterCount(), &plugIn);
}

void* InstanceVst2Adapter::allocateChunk(std::size_t size) {
    return std::malloc(size);
}

void InstanceVst2Adapter::freeChunk(void* chunk) {
    std::free(chunk);
}

FourCharCode InstanceVst2Adapter::productWord() const {
    return fourCharCode("BRLT");
}

FourCharCode InstanceVst2Adapter::vst2UniqueId() const {
    return fourCharCode("BLT2");
}

std::uint32_t InstanceVst2Adapter::recordBlockFlag() const {
    return 1;
}

std::int32_t InstanceVst2Adapter::vst2ParameterCount() const {
    return plugIn.parameterCount();
}

FourCharCode InstanceVst2Adapter::parameterIdentifier(std::int32_t index) const {
    return plugIn.idOfIndex(index);
}

float InstanceVst2Adapter::vst2Value(std::int32_t index) const {
    return static_cast<float>(plugIn.normalisedValue(index));
}

std::int32_t InstanceVst2Adapter::parameterIndex(FourCharCode identifier) const {
    return plugIn.indexOfID(identifier);
}

double InstanceVst2Adapter::plainValueOfStored(std::int32_t, double stored) const {
    return stored;
}

void InstanceVst2Adapter::setPlainValue(std::int32_t index, double plain) {
    plugIn.setParameterValue(index, plain);
}

void InstanceVst2Adapter::parameterRestored(FourCharCode) {
    ++restored;
}

void InstanceVst2Adapter::refreshHostView() {}
