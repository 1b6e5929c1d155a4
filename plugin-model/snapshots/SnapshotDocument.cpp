// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/snapshots/SnapshotDocument.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace QM {
namespace {

using nlohmann::json;

constexpr const char* snapshotsKey = "mSnapshots";
constexpr const char* presetIdsKey = "mSnapshotsUIDs";
constexpr const char* populatedKey = "mSnapshotPopulated";
constexpr const char* activeKey = "mActiveSnapshot";
constexpr const char* blendXKey = "mBlendX";
constexpr const char* blendYKey = "mBlendY";
constexpr std::array allKeys{snapshotsKey, presetIdsKey, populatedKey,
                             activeKey,    blendXKey,    blendYKey};

template <typename Number>
std::optional<Number> optionalMember(const json& document, const char* key,
                                     Number (*read)(const json&)) {
    const auto member = document.find(key);
    if (member == document.end())
        return std::nullopt;
    return read(*member);
}

/// The library's own conversion of a floating-point number is undefined out of range.
template <typename Integer>
Integer saturated(double number) {
    constexpr auto lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr auto highest = static_cast<double>(std::numeric_limits<Integer>::max());
    if (std::isnan(number))
        return 0;
    if (number <= lowest)
        return std::numeric_limits<Integer>::min();
    if (number >= highest)
        return std::numeric_limits<Integer>::max();
    return static_cast<Integer>(number);
}

double readNumber(const json& value) {
    return value.get<double>();
}

float readBlend(const json& value) {
    const double number = value.get<double>();
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::isnan(number) ? 0.5 : std::clamp(number, -largest, largest));
}

/// Booleans and every kind of number.
std::int32_t readActive(const json& value) {
    if (value.is_boolean())
        return value.get<bool>() ? 1 : 0;
    return saturated<std::int32_t>(value.get<double>());
}

std::uint64_t readPresetId(const json& value) {
    if (value.is_number_float())
        return saturated<std::uint64_t>(value.get<double>());
    return value.get<std::uint64_t>();
}

template <typename Read>
auto readArray(const json& value, std::size_t mostElements, Read read) {
    std::vector<decltype(read(value))> result;
    if (!value.is_array())
        (void)value.get<json::array_t>(); // raises the library's own error
    for (const json& element : value) {
        if (result.size() == mostElements)
            break;
        result.push_back(read(element));
    }
    return result;
}

constexpr auto anyNumberOf = std::numeric_limits<std::size_t>::max();

std::vector<double> readValues(const json& value) {
    return readArray(value, anyNumberOf, readNumber);
}

std::vector<std::vector<double>> readSnapshots(const json& value) {
    return readArray(value, mostSnapshots, readValues);
}

std::vector<std::uint64_t> readPresetIds(const json& value) {
    return readArray(value, mostSnapshots, readPresetId);
}

bool readFlag(const json& value) {
    return value.get<bool>();
}

std::vector<bool> readPopulated(const json& value) {
    return readArray(value, mostSnapshots, readFlag);
}

} // namespace

void writeSnapshotMembers(const QMSnapshotTable& table, json& document) {
    if (!document.is_object())
        document = json::object();
    json& snapshots = document[snapshotsKey] = json::array();
    json& presetIds = document[presetIdsKey] = json::array();
    json& populated = document[populatedKey] = json::array();
    for (std::int32_t i = 0; i < table.count(); ++i) {
        snapshots.push_back(table.at(i).values);
        presetIds.push_back(table.at(i).presetId);
        populated.push_back(table.at(i).populated);
    }
    document[activeKey] = table.active;
    document[blendXKey] = static_cast<double>(table.blendX);
    document[blendYKey] = static_cast<double>(table.blendY);
}

struct SnapshotMembers::Decoded {
    std::optional<std::vector<std::vector<double>>> snapshots;
    std::optional<std::vector<std::uint64_t>> presetIds;
    std::optional<std::vector<bool>> populated;
    std::optional<std::int32_t> active;
    std::optional<float> blendX;
    std::optional<float> blendY;
};

SnapshotMembers::SnapshotMembers(const json& document)
    : decoded(
          std::make_unique<Decoded>(Decoded{optionalMember(document, snapshotsKey, readSnapshots),
                                            optionalMember(document, presetIdsKey, readPresetIds),
                                            optionalMember(document, populatedKey, readPopulated),
                                            optionalMember(document, activeKey, readActive),
                                            optionalMember(document, blendXKey, readBlend),
                                            optionalMember(document, blendYKey, readBlend)})) {}

SnapshotMembers::~SnapshotMembers() = default;

void SnapshotMembers::applyTo(QMSnapshotTable& table, std::span<const double> currentValues) const {
    if (decoded->snapshots) {
        const auto known = static_cast<std::int32_t>(decoded->snapshots->size());
        const std::int32_t count = std::max(table.count(), known);
        const std::int32_t active = table.active;
        // From nothing: what the document has no snapshot for is empty, not what was there before.
        table.setCount(0, 0);
        table.setCount(count, 0);
        table.active = active;
    }
    const auto putInto = [&](const auto& elements, auto put) {
        const auto known = elements ? static_cast<std::int32_t>(elements->size()) : 0;
        for (std::int32_t i = 0; i < std::min(known, table.count()); ++i)
            put(table.at(i), (*elements)[static_cast<std::size_t>(i)]);
    };
    putInto(decoded->snapshots,
            [](auto& snapshot, const auto& values) { snapshot.values = values; });
    putInto(decoded->presetIds, [](auto& snapshot, std::uint64_t id) { snapshot.presetId = id; });
    putInto(decoded->populated, [](auto& snapshot, bool flag) { snapshot.populated = flag; });
    if (decoded->active)
        table.active = *decoded->active;
    table.blendX = decoded->blendX.value_or(table.blendX);
    table.blendY = decoded->blendY.value_or(table.blendY);
    table.conform(currentValues);
}

void SnapshotMembers::removeFrom(json& document) {
    if (!document.is_object())
        return;
    for (const char* key : allKeys)
        document.erase(key);
}

} // namespace QM
