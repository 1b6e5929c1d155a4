// SPDX-License-Identifier: GPL-3.0-or-later
// Reads preference files without the toolkit.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace preferencesTest {

/// Empty where there is no file.
std::string bytesOf(const std::filesystem::path& file);

/// Key to text of a preference file whose values are all attributes: an XML declaration, an element
/// PROPERTIES, in it elements VALUE with the attributes name and val. Throws std::runtime_error
/// where the file is anything else. Empty where there is no file.
std::map<std::string, std::string> storedValues(const std::filesystem::path& file);

/// A preference file with one value, in the form the stores write.
std::string fileWith(const std::string& key, const std::string& escapedText);

} // namespace preferencesTest
