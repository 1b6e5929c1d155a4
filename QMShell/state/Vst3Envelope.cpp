// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst3Envelope.h"

#include "QMShell/state/IStateByteStream.h"
#include "QMShell/state/StateRecordBytes.h"
#include "QMShell/state/StateStreamReading.h"
#include "presets/record/GenericPresetFormat.h"

#include <bit>
#include <stdexcept>

static_assert(std::endian::native == std::endian::little,
              "numbers go to the stream as they lie in memory");

namespace {

constexpr std::int32_t writtenVersion = 0;
/// First capacity of the record's stream, in bytes.
constexpr std::int32_t initialCapacity = 1024;

bool writeWhole(IStateByteStream& stream, std::size_t size, const void* bytes) {
    return stream.write(size, bytes) == size;
}

} // namespace

bool writeVst3Envelope(IStateByteStream& stream, const QMGenericPreset& record) {
    MemoryStream memory(initialCapacity);
    if (!writeGenericPreset(record, memory))
        return false;
    const std::int32_t length = memory.size();
    return writeWhole(stream, sizeof writtenVersion, &writtenVersion) &&
           writeWhole(stream, sizeof length, &length) &&
           writeWhole(stream, memory.bytes().size(), memory.bytes().data());
}

std::optional<QMGenericPreset> readVst3Envelope(IStateByteStream& stream) {
    std::int32_t version = 0;
    std::int32_t length = 0;
    if (!readExactly(stream, sizeof version, &version) || version < 0 ||
        !readExactly(stream, sizeof length, &length))
        return std::nullopt;
    // A host that hands such a stream over is broken, not its project: the caller hears it louder.
    if (length < 0)
        throw std::length_error("negative length of a settings record");
    const auto bytes = readExactly(stream, static_cast<std::size_t>(length));
    if (!bytes)
        return std::nullopt;
    return readRecordBytes(*bytes);
}
