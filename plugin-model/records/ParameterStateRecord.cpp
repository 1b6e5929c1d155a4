// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/records/ParameterStateRecord.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace QM {
namespace {

constexpr std::size_t lengthOffset = 0;
constexpr std::size_t versionOffset = 4;
constexpr std::size_t typeOffset = 8;
constexpr std::size_t manufacturerOffset = 12;
constexpr std::size_t byteOrderOffset = 16;

template <typename Number>
void put(std::vector<std::byte>& bytes, std::size_t offset, Number number) {
    std::memcpy(bytes.data() + offset, &number, sizeof number);
}

template <typename Number>
Number get(std::span<const std::byte> bytes, std::size_t offset, bool swapped) {
    std::array<std::byte, sizeof(Number)> field{};
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), field.size(), field.begin());
    if (swapped)
        std::reverse(field.begin(), field.end());
    Number number{};
    std::memcpy(&number, field.data(), sizeof number);
    return number;
}

} // namespace

std::vector<std::byte> ParameterStateRecord::bytes() const {
    std::vector<std::byte> result(valuesOffset + values.size() * sizeof(double));
    put(result, lengthOffset, static_cast<std::uint32_t>(result.size()));
    put(result, versionOffset, version);
    put(result, typeOffset, typeCode);
    put(result, manufacturerOffset, manufacturerCode);
    put(result, countOffset, static_cast<std::uint32_t>(values.size()));
    if (!values.empty())
        std::memcpy(result.data() + valuesOffset, values.data(), values.size() * sizeof(double));
    return result;
}

std::optional<ParameterStateRecord> ParameterStateRecord::of(std::span<const std::byte> bytes) {
    if (bytes.size() < valuesOffset)
        return std::nullopt;
    const bool swapped = get<std::uint32_t>(bytes, byteOrderOffset, false) != 0;
    const std::size_t length = get<std::uint32_t>(bytes, lengthOffset, swapped);
    if (length < valuesOffset || length > bytes.size())
        return std::nullopt;
    const std::size_t count = get<std::uint32_t>(bytes, countOffset, swapped);
    if (count > (length - valuesOffset) / sizeof(double))
        return std::nullopt;
    ParameterStateRecord record;
    record.version = get<std::uint32_t>(bytes, versionOffset, swapped);
    record.typeCode = get<FourCharCode>(bytes, typeOffset, swapped);
    record.manufacturerCode = get<FourCharCode>(bytes, manufacturerOffset, swapped);
    for (std::size_t i = 0; i < count; ++i)
        record.values.push_back(get<double>(bytes, valuesOffset + i * sizeof(double), swapped));
    return record;
}

} // namespace QM
