// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2Chunk.h"

#include "QMShell/state/IVst2ChunkAdapter.h"
#include "QMShell/state/StateRecordBytes.h"
#include "QMShell/state/Vst2ChunkDecoder.h"
#include "plugin-model/INoxPlugInState.h"

#include <algorithm>
#include <cstring>

namespace {

using namespace Vst2ChunkLayout;

/// First capacity of the record's stream, in bytes.
constexpr std::int32_t recordStreamCapacity = 128;

/// What a chunk has beside its entries and its record, surplus included, in bytes.
constexpr std::size_t fixedSize = 104;
constexpr std::size_t sizeOfBlockWithoutInstance = 8;
constexpr std::size_t sizeOfBlockWithInstance = 12;

std::uint32_t entryCountOf(std::int32_t parameterCount) {
    return static_cast<std::uint32_t>(std::max(parameterCount, 0));
}

/// Puts structures one behind the other.
class Writer {
public:
    explicit Writer(std::byte* destination)
        : next(destination) {}

    template <typename Structure>
    void write(const Structure& structure) {
        write(&structure, sizeof structure);
    }

    void write(const void* bytes, std::size_t size) {
        if (size > 0)
            std::memcpy(next, bytes, size);
        next += size;
    }

private:
    std::byte* next;
};

} // namespace

std::size_t vst2ChunkSize(std::int32_t parameterCount, const INoxPlugInState* instance) {
    const std::size_t size = fixedSize + sizeof(Entry) * entryCountOf(parameterCount);
    return instance == nullptr ? size + sizeOfBlockWithoutInstance
                               : size + completeStateSize(*instance) + sizeOfBlockWithInstance;
}

Vst2Chunk::~Vst2Chunk() {
    freeBuffer();
}

void Vst2Chunk::freeBuffer() {
    if (buffer != nullptr)
        adapter.freeChunk(buffer);
    buffer = nullptr;
    bufferSize = 0;
}

bool Vst2Chunk::holdBuffer(std::size_t size) {
    if (buffer != nullptr && size == bufferSize)
        return true;
    freeBuffer();
    buffer = static_cast<std::byte*>(adapter.allocateChunk(size));
    if (buffer == nullptr)
        return false;
    bufferSize = size;
    // All of it: the surplus is never written, and what lay in memory before is none of a project's
    // business.
    std::memset(buffer, 0, size);
    return true;
}

std::span<const std::byte> Vst2Chunk::get() {
    const INoxPlugInState* const instance = adapter.chunkInstance();
    MemoryStream record(recordStreamCapacity);
    if (instance != nullptr && !writeCompleteState(*instance, record))
        return {};
    const std::uint32_t entryCount = entryCountOf(adapter.vst2ParameterCount());
    const std::size_t recordSize = record.bytes().size();
    const std::size_t contentSize =
        sizeof(Header) + sizeof(Entry) * entryCount + sizeof(RecordBlock) + recordSize;
    if (!holdBuffer(std::max(adapter.chunkSize(), contentSize)))
        return {};

    Header header{};
    header.marker = nativeMarker;
    header.version = writtenVersion;
    header.productWord = adapter.productWord();
    header.uniqueId = adapter.vst2UniqueId();
    header.recordBlockFlag = adapter.recordBlockFlag();
    header.entryCount = entryCount;
    Writer writer(buffer);
    writer.write(header);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(entryCount); ++i) {
        const FourCharCode identifier =
            instance != nullptr ? adapter.parameterIdentifier(i) : noIdentifier;
        writer.write(Entry{identifier, 0, double{adapter.vst2Value(i)}});
    }
    writer.write(RecordBlock{static_cast<std::uint32_t>(recordSize), recordBlockTag});
    writer.write(record.bytes().data(), recordSize);
    return {buffer, bufferSize};
}

Vst2ChunkReading Vst2Chunk::set(std::span<const std::byte> bytes) {
    const std::optional<Vst2ChunkContent> content = decodeVst2Chunk(bytes);
    if (!content)
        return Vst2ChunkReading::ignored;
    auto reading = Vst2ChunkReading::entriesApplied;
    INoxPlugInState* const instance = adapter.chunkInstance();
    std::optional<QMGenericPreset> record;
    if (instance != nullptr && !content->record.empty())
        record = readRecordBytes(content->record);
    if (record) {
        instance->adaptStateRecord(*record);
        reading = instance->applyStateRecord(*record) ? Vst2ChunkReading::recordApplied
                                                      : Vst2ChunkReading::recordDeclined;
    } else {
        for (const Vst2StoredValue& entry : content->entries) {
            const std::int32_t index = adapter.parameterIndex(entry.identifier);
            if (index >= 0)
                adapter.setPlainValue(index, adapter.plainValueOfStored(index, entry.value));
            adapter.parameterRestored(entry.identifier);
        }
    }
    adapter.refreshHostView();
    return reading;
}
