// SPDX-License-Identifier: GPL-3.0-or-later
//
// Texts are UTF-8 throughout the tool. Windows hands over arguments in wide characters, which
// become UTF-8 here; paths do so in Utf8Path.h.

#pragma once

#include "presets/record/Utf8Path.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The program's arguments in UTF-8, without its name. On Windows they come from the system and not
/// from `argv`, whose characters are those of the system's code page. [any thread]
std::vector<std::string> utf8Arguments(int argc, const char* const* argv);

/// A path that an option gives; nothing for an option that was not given. [any thread]
std::optional<std::filesystem::path> optionalPath(const std::string& text);
