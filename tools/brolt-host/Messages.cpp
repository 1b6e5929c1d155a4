// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/Messages.h"

#include <cstdio>

std::string printableText(std::string text) {
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char deleteCharacter = 0x7f;
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < firstPrintable || byte == deleteCharacter)
            c = '?';
    }
    return text;
}

std::string messageLine(const std::string& text) {
    return printableText("brolt-host: " + text);
}

void printMessage(const std::string& text) {
    std::fputs((messageLine(text) + "\n").c_str(), stderr);
}
