// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finds and reads the C++ sources of a checkout, for the tests that look at the code as text.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The C++ files (.h, .cpp) below `root`, as paths relative to it with forward slashes, sorted.
// Folders whose name starts with a dot and a `build` folder of the root are left out.
// Throws std::filesystem::filesystem_error where a folder cannot be read. [any thread]
std::vector<std::string> findSourceFiles(const std::filesystem::path& root);

// The lines of a text file without their ends, a carriage return included.
// Throws std::runtime_error where the file cannot be read. [any thread]
std::vector<std::string> readLines(const std::filesystem::path& file);
