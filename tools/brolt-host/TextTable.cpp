// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/TextTable.h"

#include <algorithm>

namespace {

std::size_t characterCount(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xc0U) != 0x80U;
    }));
}

} // namespace

std::string alignedTable(const std::vector<TextRow>& rows) {
    std::vector<std::size_t> widths;
    for (const TextRow& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], characterCount(row[i]));
    }
    std::string text;
    for (const TextRow& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] - characterCount(row[i]) + 2, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

std::string tabSeparatedTable(const std::vector<TextRow>& rows) {
    std::string text;
    for (const TextRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text += (i == 0 ? "" : "\t") + row[i];
        text += "\n";
    }
    return text;
}
