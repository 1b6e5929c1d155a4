// SPDX-License-Identifier: GPL-3.0-or-later
// Preset files as bytes, put together by hand and without the product's code.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

/// Four characters as the number they are in a file.
std::uint32_t code(const char* characters);

struct PresetBytes {
    std::uint32_t magic = code("qmbp");
    std::uint32_t version = 2;
    std::uint32_t valuesTag = 0;
    std::uint32_t manufacturer = code("QML ");
    std::uint32_t product = code("BRLT");
    std::uint32_t variant = code("****");
    std::string name = "Sample";
    std::vector<std::pair<std::uint32_t, double>> values = {{code("afre"), 80.0},
                                                            {code("gain"), -3.5}};
    std::string extension = "\xC0"; ///< MessagePack's null
    std::uint32_t extensionType = code("msgp");
    std::uint64_t uniqueId = 0x8000000000000123u;

    [[nodiscard]] std::string bytes() const;
};

/// A record that has an identifier.
PresetBytes withId(std::uint64_t id);

void writeFile(const std::filesystem::path& path, const std::string& bytes);

/// Empty for a file that is not there.
std::string readFile(const std::filesystem::path& path);

/// The number in a file's last eight bytes.
std::uint64_t idAtEndOf(const std::filesystem::path& path);

/// Names of everything in a folder, sorted.
std::vector<std::string> namesIn(const std::filesystem::path& folder);
