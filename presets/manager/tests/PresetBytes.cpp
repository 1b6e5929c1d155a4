// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/tests/PresetBytes.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

void append(std::string& bytes, std::uint64_t number, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFFu);
}

void append32(std::string& bytes, std::uint64_t number) {
    append(bytes, number, 4);
}

} // namespace

std::uint32_t code(const char* characters) {
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number * 256 + static_cast<unsigned char>(characters[i]);
    return number;
}

std::string PresetBytes::bytes() const {
    std::string all;
    for (const std::uint32_t word : {magic, version, valuesTag, manufacturer, product, variant})
        append32(all, word);
    append32(all, name.size());
    all += name;
    append32(all, values.size());
    for (const auto& [id, value] : values) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        append32(all, id);
        append(all, bits, 8);
    }
    if (version >= 2) {
        all += extension;
        append32(all, extensionType);
        append32(all, extension.size());
    }
    if (version >= 1)
        append(all, uniqueId, 8);
    return all;
}

PresetBytes withId(std::uint64_t id) {
    PresetBytes preset;
    preset.uniqueId = id;
    return preset;
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary);
    out << bytes;
    if (!out.flush())
        throw std::runtime_error("cannot write " + path.string());
}

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::uint64_t idAtEndOf(const std::filesystem::path& path) {
    const std::string bytes = readFile(path);
    if (bytes.size() < 8)
        throw std::runtime_error("too short");
    std::uint64_t id = 0;
    for (std::size_t i = 0; i < 8; ++i)
        id = id << 8 | static_cast<unsigned char>(bytes[bytes.size() - 1 - i]);
    return id;
}

std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::u8string name = entry.path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    std::sort(names.begin(), names.end());
    return names;
}
