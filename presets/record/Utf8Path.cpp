// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/Utf8Path.h"

std::filesystem::path pathFromUtf8(const std::string& text) {
#ifdef _WIN32
    try {
        return {std::u8string(text.begin(), text.end())};
    } catch (const std::exception&) {
        return {};
    }
#else
    return {text};
#endif
}

std::string utf8FromPath(const std::filesystem::path& path) {
#ifdef _WIN32
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
#else
    return path.native();
#endif
}
