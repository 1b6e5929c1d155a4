// SPDX-License-Identifier: GPL-3.0-or-later
//
// Texts are UTF-8 throughout the tool. Windows hands over arguments and takes paths in wide
// characters: these are the only places where the one becomes the other.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The program's arguments in UTF-8, without its name. On Windows they come from the system and not
/// from `argv`, whose characters are those of the system's code page. [any thread]
std::vector<std::string> utf8Arguments(int argc, const char* const* argv);

/// [any thread]
std::filesystem::path pathFromUtf8(const std::string& text);

/// As it was typed: separators are left alone. [any thread]
std::string utf8FromPath(const std::filesystem::path& path);
