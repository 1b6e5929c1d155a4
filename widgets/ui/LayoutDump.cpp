// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/LayoutDump.h"

#include <array>
#include <cstdio>

namespace {

std::string lineOf(const ZulControlAreaDescriptor& entry) {
    const auto character = [&entry](int index) {
        return static_cast<char>(entry.widgetID >> (24 - 8 * index));
    };
    std::array<char, 96> line{};
    std::snprintf(line.data(), line.size(), "\t{'%c%c%c%c', {%4d, %4d, %4d, %4d}},\n", character(0),
                  character(1), character(2), character(3), entry.top, entry.left, entry.width,
                  entry.height);
    return line.data();
}

} // namespace

std::string layoutTableText(std::span<const ZulControlAreaDescriptor> entries) {
    std::string text = "static const\nZulControlAreaDescriptor = control_areas[] = {\n";
    for (const ZulControlAreaDescriptor& entry : entries)
        text += lineOf(entry);
    return text + "};\n";
}
