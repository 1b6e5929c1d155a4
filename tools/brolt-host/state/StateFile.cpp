// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/StateFile.h"

#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/StateRecordBytes.h"
#include "QMShell/state/Vst2Bank.h"
#include "QMShell/state/Vst2Chunk.h"
#include "QMShell/state/Vst3Envelope.h"
#include "QMShell/state/Vst3State.h"
#include "brolt/model/QMBrolt_ProductCodes.h"
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/PresetIdentity.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/InputFile.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/ReplacedFile.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/state/AaxChunkFile.h"
#include "tools/brolt-host/state/PresetDamage.h"
#include "tools/brolt-host/state/RecordChunkAdapter.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

using Bytes = std::span<const std::byte>;

/// No settings are anywhere near it; a wrong file may be.
constexpr std::uintmax_t largestFile = 64u << 20;

std::vector<std::byte> readWholeFile(const fs::path& file) {
    checkInputFile(file);
    std::error_code error;
    if (fs::file_size(file, error) > largestFile)
        throw HostError::ofFile(file, "is too large to be a preset or a plug-in's state");
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> characters{std::istreambuf_iterator<char>(stream), {}};
    if (stream.bad())
        throw HostError::ofFile(file, "cannot be read");
    const auto* const first = reinterpret_cast<const std::byte*>(characters.data());
    return {first, first + characters.size()};
}

std::uint32_t wordAt(Bytes bytes, std::size_t offset) {
    std::uint32_t word = 0;
    if (bytes.size() >= offset + sizeof word)
        std::memcpy(&word, bytes.data() + offset, sizeof word);
    return word;
}

std::optional<StateForm> formOf(Bytes bytes) {
    const std::uint32_t chunkMarker = wordAt(bytes, offsetof(Vst2ChunkLayout::Header, marker));
    constexpr std::size_t recordInVst3Envelope = 8;
    if (wordAt(bytes, 0) == GenericPresetFormat::magic)
        return StateForm::preset;
    if (mayBeginVst2Bank(bytes))
        return StateForm::bank;
    if (isAaxChunkFile(bytes))
        return StateForm::aax;
    if (chunkMarker == Vst2ChunkLayout::nativeMarker ||
        chunkMarker == Vst2ChunkLayout::swappedMarker)
        return StateForm::vst2;
    if (wordAt(bytes, recordInVst3Envelope) == GenericPresetFormat::magic)
        return StateForm::vst3;
    return std::nullopt;
}

/// What has parameters alone is settings of this product with everything else at its default.
QMGenericPreset recordWithoutValues() {
    QMGenericPreset record;
    record.manufacturerCode = QMBrolt::manufacturerCode;
    record.productCode = QMBrolt::productCode;
    return record;
}

std::optional<QMGenericPreset> readChunk(Bytes bytes) {
    ProductModel product;
    RecordState state(recordWithoutValues());
    RecordChunkAdapter adapter(state, product.parameters());
    const Vst2ChunkReading reading = Vst2Chunk(adapter).set(bytes);
    // The plug-in makes do with the entries where the record cannot be read. Here that is damage.
    const bool promisedRecord =
        wordAt(bytes, offsetof(Vst2ChunkLayout::Header, recordBlockFlag)) != 0;
    if (reading == Vst2ChunkReading::ignored ||
        (reading == Vst2ChunkReading::entriesApplied && promisedRecord))
        return std::nullopt;
    return state.record;
}

std::optional<QMGenericPreset> readBank(Bytes bytes) {
    ProductModel product;
    RecordState state(recordWithoutValues());
    RecordChunkAdapter adapter(state, product.parameters());
    StateMemoryStream stream(bytes);
    if (!isAccepted(readVst3State(stream, state, {adapter, QMBrolt::vst2UniqueId})))
        return std::nullopt;
    return state.record;
}

std::optional<QMGenericPreset> readRecord(Bytes bytes, StateForm form) {
    switch (form) {
    case StateForm::preset:
        return readRecordBytes(bytes);
    case StateForm::vst3: {
        StateMemoryStream stream(bytes);
        return readVst3Envelope(stream);
    }
    case StateForm::vst2:
        return readChunk(bytes);
    case StateForm::aax: {
        const auto data = aaxChunkData(bytes);
        return data ? readRecordBytes(*data) : std::nullopt;
    }
    case StateForm::bank:
        return readBank(bytes);
    }
    return std::nullopt;
}

const char* damageOf(StateForm form) {
    switch (form) {
    case StateForm::preset:
        return "is a damaged preset";
    case StateForm::vst3:
        return "is a damaged VST3 state";
    case StateForm::vst2:
        return "is a damaged VST 2 chunk";
    case StateForm::aax:
        return "is a damaged AAX chunk";
    case StateForm::bank:
        return "is a VST 2 bank without a readable chunk of this product";
    }
    return "cannot be read";
}

std::vector<std::byte> copyOf(Bytes bytes) {
    return {bytes.begin(), bytes.end()};
}

std::vector<std::byte> recordBytes(const QMGenericPreset& record) {
    constexpr std::int32_t initialCapacity = 1024;
    MemoryStream stream(initialCapacity);
    if (!writeGenericPreset(record, stream))
        throw std::bad_alloc();
    return copyOf(stream.bytes());
}

std::vector<std::byte> vst3Bytes(const QMGenericPreset& record) {
    StateMemoryStream stream;
    if (!writeVst3Envelope(stream, record))
        throw std::bad_alloc();
    return stream.bytes();
}

std::vector<std::byte> vst2Bytes(const QMGenericPreset& record) {
    ProductModel product;
    RecordState state(record);
    RecordChunkAdapter adapter(state, product.parameters());
    Vst2Chunk chunk(adapter);
    return copyOf(chunk.get());
}

std::vector<std::byte> aaxBytes(const QMGenericPreset& record) {
    constexpr int stereo = 2;
    ProductModel product;
    AaxChunk chunk;
    chunk.data = recordBytes(record);
    return aaxChunkFile(chunk, product.typeForChannels(stereo).aaxTypeIDs().native);
}

} // namespace

StateFile readStateFile(const fs::path& file) {
    const std::vector<std::byte> bytes = readWholeFile(file);
    const std::optional<StateForm> form = formOf(bytes);
    if (!form)
        throw HostError::ofFile(file, "is neither a preset nor a plug-in's state");
    if (*form == StateForm::preset) {
        if (const auto damage = presetDamage(bytes))
            throw HostError::ofFile(file, *damage);
    }
    std::optional<QMGenericPreset> record;
    try {
        record = readRecord(bytes, *form);
    } catch (const std::length_error&) {
        // A length below zero: refused like any other wrong one.
    }
    if (!record)
        throw HostError::ofFile(file, damageOf(*form));
    return {*form, std::move(*record)};
}

std::vector<std::byte> encodeState(const QMGenericPreset& record, StateForm form) {
    switch (form) {
    case StateForm::preset:
        return recordBytes(record);
    case StateForm::vst3:
        return vst3Bytes(record);
    case StateForm::vst2:
        return vst2Bytes(record);
    case StateForm::aax:
        return aaxBytes(record);
    case StateForm::bank:
        break;
    }
    throw HostError("a VST 2 bank can be read but not written");
}

void writeStateFile(const fs::path& file, const QMGenericPreset& record, StateForm form) {
    const std::vector<std::byte> bytes = encodeState(record, form);
    ReplacedFile replaced(file);
    {
        std::ofstream stream(replaced.temporaryPath(), std::ios::binary | std::ios::trunc);
        stream.write(reinterpret_cast<const char*>(bytes.data()),
                     static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream)
            throw HostError::ofFile(file, "cannot be written");
    }
    replaced.commit();
}

void writePresetFile(const fs::path& file, QMGenericPreset record) {
    record.name = utf8FromPath(file.stem());
    record.uniqueId = 0;
    std::error_code ignored;
    if (fs::exists(file, ignored)) {
        try {
            record.uniqueId = readStateFile(file).record.uniqueId;
        } catch (const HostError&) {
            // Not a preset so far.
        }
    }
    if (record.uniqueId == 0)
        record.uniqueId = PresetIdentity::fresh();
    writeStateFile(file, record, StateForm::preset);
}
