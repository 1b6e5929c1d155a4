// SPDX-License-Identifier: GPL-3.0-or-later
//
// One include line of a source file, taken apart.

#include "tests/layering/IncludeLine.h"

#include <cstddef>
#include <string_view>

namespace {

void skipBlanks(std::string_view& text) {
    const std::size_t begin = text.find_first_not_of(" \t");
    text.remove_prefix(begin == std::string_view::npos ? text.size() : begin);
}

bool skipWord(std::string_view& text, std::string_view word) {
    skipBlanks(text);
    if (!text.starts_with(word)) {
        return false;
    }
    text.remove_prefix(word.size());
    return true;
}

} // namespace

std::optional<IncludeLine> parseIncludeLine(const std::string& line) {
    std::string_view text = line;
    if (!skipWord(text, "#") || !skipWord(text, "include")) {
        return std::nullopt;
    }
    // #include_next reaches headers all the same.
    skipWord(text, "_next");
    skipBlanks(text);
    if (text.empty() || (text.front() != '"' && text.front() != '<')) {
        return std::nullopt;
    }
    const bool quoted = text.front() == '"';
    text.remove_prefix(1);
    const std::size_t end = text.find(quoted ? '"' : '>');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return IncludeLine{std::string(text.substr(0, end)), quoted};
}
