// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/GenericPresetFormat.h"

#include "presets/record/ExtensionDocument.h"

#include <bit>
#include <type_traits>
#include <utility>
#include <vector>

static_assert(std::endian::native == std::endian::little,
              "numbers go to the stream as they lie in memory");

namespace {

using namespace GenericPresetFormat;

/// Remembers the first failure, so that a sequence of writes is checked once at its end.
class Writer {
public:
    explicit Writer(QMGenericPresetStream& destination)
        : stream(destination) {}

    template <typename Number>
    void number(Number value) {
        static_assert(std::is_arithmetic_v<Number>);
        bytes(&value, sizeof value);
    }

    void bytes(const void* data, std::size_t size) {
        failed = failed || stream.write(static_cast<std::int32_t>(size), data);
    }

    [[nodiscard]] bool complete() const { return !failed; }

private:
    QMGenericPresetStream& stream;
    bool failed = false;
};

template <typename Number>
bool readNumber(QMGenericPresetStream& stream, Number& value) {
    return !stream.read(sizeof value, &value);
}

bool readFixedWords(QMGenericPresetStream& stream, std::uint32_t& version,
                    QMGenericPreset& preset) {
    std::uint32_t firstWord = 0;
    return readNumber(stream, firstWord) && firstWord == magic && readNumber(stream, version) &&
           readNumber(stream, preset.valuesTag) && readNumber(stream, preset.manufacturerCode) &&
           readNumber(stream, preset.productCode) && readNumber(stream, preset.variantCode);
}

bool readName(QMGenericPresetStream& stream, std::string& name) {
    std::uint32_t length = 0;
    if (!readNumber(stream, length))
        return false;
    const std::int64_t left = std::int64_t{stream.size()} - stream.tell();
    if (length > left)
        return false;
    name.resize(length);
    return !stream.read(static_cast<std::int32_t>(length), name.data());
}

/// Puts the stream back to where it was, so that what lies at its end can be looked up on the way.
class ExcursionToEnd {
public:
    explicit ExcursionToEnd(QMGenericPresetStream& visited)
        : stream(visited)
        , home(visited.tell()) {}

    ~ExcursionToEnd() { stream.seek(home); }

    ExcursionToEnd(const ExcursionToEnd&) = delete;
    ExcursionToEnd& operator=(const ExcursionToEnd&) = delete;

    /// False when the stream is shorter than that.
    [[nodiscard]] bool goBackFromEnd(std::int64_t distance) {
        const std::int64_t target = std::int64_t{stream.size()} - distance;
        return target >= 0 && stream.seek(static_cast<std::int32_t>(target)) == target;
    }

private:
    QMGenericPresetStream& stream;
    std::int32_t home;
};

constexpr std::int64_t uniqueIdSize = sizeof(std::uint64_t);
/// Unique identifier, length and type of the extension.
constexpr std::int64_t trailerSize = uniqueIdSize + 2 * sizeof(std::uint32_t);

bool readUniqueId(QMGenericPresetStream& stream, std::uint64_t& id) {
    ExcursionToEnd excursion(stream);
    return excursion.goBackFromEnd(uniqueIdSize) && readNumber(stream, id);
}

bool readExtension(QMGenericPresetStream& stream, nlohmann::json& extension) {
    ExcursionToEnd excursion(stream);
    FourCharCode type = 0;
    std::uint32_t length = 0;
    if (!excursion.goBackFromEnd(trailerSize) || !readNumber(stream, type) ||
        !readNumber(stream, length))
        return false;
    if (type != messagePackExtension && type != jsonExtension)
        return true;
    if (!excursion.goBackFromEnd(trailerSize + length))
        return false;
    std::vector<std::uint8_t> payload(length);
    if (stream.read(static_cast<std::int32_t>(length), payload.data()))
        return false;
    auto document = type == messagePackExtension ? decodeMessagePackDocument(payload)
                                                 : decodeJsonDocument(payload);
    if (!document)
        return false;
    extension = std::move(*document);
    return true;
}

} // namespace

bool writeGenericPreset(const QMGenericPreset& preset, QMGenericPresetStream& stream) {
    if (!stream.isOpen())
        return false;
    Writer writer(stream);
    writer.number(magic);
    writer.number(writtenVersion);
    writer.number(preset.valuesTag);
    writer.number(preset.manufacturerCode);
    writer.number(preset.productCode);
    writer.number(preset.variantCode);
    writer.number(static_cast<std::uint32_t>(preset.name.size()));
    writer.bytes(preset.name.data(), preset.name.size());
    writer.number(static_cast<std::uint32_t>(preset.values.size()));
    for (const auto& [id, value] : preset.values) {
        writer.number(id);
        writer.number(value);
    }
    const std::vector<std::uint8_t> extension = nlohmann::json::to_msgpack(preset.extension);
    writer.bytes(extension.data(), extension.size());
    writer.number(messagePackExtension);
    writer.number(static_cast<std::uint32_t>(extension.size()));
    writer.number(preset.uniqueId);
    return writer.complete();
}

std::optional<GenericPresetHeader> readGenericPresetHeader(QMGenericPresetStream& stream,
                                                           UndecodableExtension undecodable) {
    GenericPresetHeader header;
    std::uint32_t version = 0;
    if (!readFixedWords(stream, version, header.preset) || !readName(stream, header.preset.name) ||
        !readNumber(stream, header.valueCount))
        return std::nullopt;
    if (version >= firstVersionWithUniqueId && !readUniqueId(stream, header.preset.uniqueId))
        return std::nullopt;
    if (version >= firstVersionWithExtension && !readExtension(stream, header.preset.extension) &&
        undecodable == UndecodableExtension::refuse)
        return std::nullopt;
    return header;
}

QMGenericPreset readGenericPresetValues(QMGenericPresetStream& stream, GenericPresetHeader header) {
    for (std::uint32_t i = 0; i < header.valueCount; ++i) {
        FourCharCode id = 0;
        double value = 0.0;
        // The count may promise more than there is.
        if (!readNumber(stream, id) || !readNumber(stream, value))
            break;
        header.preset.values.insert_or_assign(id, value);
    }
    return std::move(header.preset);
}

std::optional<QMGenericPreset> readGenericPreset(QMGenericPresetStream& stream,
                                                 UndecodableExtension undecodable) {
    std::optional<GenericPresetHeader> header = readGenericPresetHeader(stream, undecodable);
    if (!header)
        return std::nullopt;
    return readGenericPresetValues(stream, std::move(*header));
}
