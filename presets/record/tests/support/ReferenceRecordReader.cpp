// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include "presets/record/tests/support/MessagePackDepth.h"

#include <algorithm>
#include <bit>
#include <iomanip>
#include <sstream>

namespace {

using nlohmann::json;

/// Documents that nest deeper are refused.
constexpr int deepest = 64;

std::uint64_t numberAt(std::span<const std::byte> bytes, std::size_t position, int size) {
    std::uint64_t value = 0;
    for (int i = 0; i < size; ++i)
        value |= std::to_integer<std::uint64_t>(bytes[position + static_cast<std::size_t>(i)])
                 << (8 * i);
    return value;
}

std::uint32_t wordAt(std::span<const std::byte> bytes, std::size_t position) {
    return static_cast<std::uint32_t>(numberAt(bytes, position, 4));
}

/// For JSON, whose parser does not mind depth.
int depthOf(const json& value) {
    int deepestChild = 0;
    if (!value.is_structured())
        return 0;
    for (const json& child : value)
        deepestChild = std::max(deepestChild, depthOf(child));
    return 1 + deepestChild;
}

bool readExtension(std::span<const std::byte> bytes, json& extension) {
    if (bytes.size() < 16)
        return false;
    const std::uint32_t type = wordAt(bytes, bytes.size() - 16);
    const std::size_t length = wordAt(bytes, bytes.size() - 12);
    const bool isText = type == 0x6A736F6E;
    if (type != 0x6D736770 && !isText)
        return true;
    if (length > bytes.size() - 16)
        return false;
    std::string payload;
    for (const std::byte byte : bytes.subspan(bytes.size() - 16 - length, length))
        payload += static_cast<char>(byte);
    if (!isText && nestsTooDeep(bytes.subspan(bytes.size() - 16 - length, length), deepest))
        return false;
    extension =
        isText ? json::parse(payload, nullptr, false) : json::from_msgpack(payload, true, false);
    return !extension.is_discarded() && depthOf(extension) <= deepest;
}

} // namespace

std::optional<QMGenericPreset> readRecordPlainly(std::span<const std::byte> bytes) {
    if (bytes.size() < 28 || wordAt(bytes, 0) != 0x716D6270)
        return std::nullopt;
    const std::uint32_t version = wordAt(bytes, 4);
    QMGenericPreset record;
    record.valuesTag = wordAt(bytes, 8);
    record.manufacturerCode = wordAt(bytes, 12);
    record.productCode = wordAt(bytes, 16);
    record.variantCode = wordAt(bytes, 20);
    const std::size_t nameLength = wordAt(bytes, 24);
    if (nameLength > bytes.size() - 28 || bytes.size() - 28 - nameLength < 4)
        return std::nullopt;
    for (const std::byte byte : bytes.subspan(28, nameLength))
        record.name += static_cast<char>(byte);

    if (version >= 1)
        record.uniqueId = numberAt(bytes, bytes.size() - 8, 8);
    if (version >= 2 && !readExtension(bytes, record.extension))
        return std::nullopt;

    const std::uint32_t count = wordAt(bytes, 28 + nameLength);
    std::size_t position = 32 + nameLength;
    for (std::uint32_t i = 0; i < count && bytes.size() - position >= 12; ++i, position += 12)
        record.values[wordAt(bytes, position)] =
            std::bit_cast<double>(numberAt(bytes, position + 4, 8));
    return record;
}

std::string describeRecord(const std::optional<QMGenericPreset>& record) {
    if (!record)
        return "refused";
    std::ostringstream text;
    text << std::hex << std::setfill('0') << "tag " << record->valuesTag << " codes "
         << record->manufacturerCode << ' ' << record->productCode << ' ' << record->variantCode
         << " id " << record->uniqueId << " name";
    for (const char character : record->name)
        text << ' ' << std::setw(2) << static_cast<unsigned>(static_cast<unsigned char>(character));
    text << " values";
    for (const auto& [identifier, value] : record->values)
        text << ' ' << identifier << ':' << std::bit_cast<std::uint64_t>(value);
    text << " extension";
    for (const unsigned byte : json::to_msgpack(record->extension))
        text << ' ' << std::setw(2) << byte;
    return text.str();
}
