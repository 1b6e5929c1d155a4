// SPDX-License-Identifier: GPL-3.0-or-later
// Paths as the presets have them, text in UTF-8, and as the standard library has them.
#pragma once

#include <filesystem>
#include <string>

/// The empty path, on which every operation fails, for text that is none. Where file names are
/// bytes, these stay as they are. [any thread]
[[nodiscard]] std::filesystem::path pathFromUtf8(const std::string& text);

/// [any thread]
[[nodiscard]] std::string utf8FromPath(const std::filesystem::path& path);
