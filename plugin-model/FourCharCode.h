// SPDX-License-Identifier: GPL-3.0-or-later
// Four-character codes: the 32-bit identifiers that address parameters, types, makers and meters
// in hosts' projects, presets and the editor's layouts. The first character is the most
// significant byte, so that a code reads the same in a debugger as in a table.
#pragma once

#include <cstdint>
#include <string>

using FourCharCode = std::uint32_t;

/// The code of a four-character literal: fourCharCode("gain"). [any thread]
constexpr FourCharCode fourCharCode(const char (&text)[5]) {
    FourCharCode code = 0;
    for (int i = 0; i < 4; ++i)
        code = (code << 8) | static_cast<unsigned char>(text[i]);
    return code;
}

/// The four characters of a code, most significant byte first. [any thread]
inline std::string fourCharText(FourCharCode code) {
    return {static_cast<char>(code >> 24), static_cast<char>(code >> 16),
            static_cast<char>(code >> 8), static_cast<char>(code)};
}
