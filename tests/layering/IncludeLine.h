// SPDX-License-Identifier: GPL-3.0-or-later
//
// One include line of a source file, taken apart.

#pragma once

#include <optional>
#include <string>

struct IncludeLine {
    std::string header;

    // "header" rather than <header>.
    bool quoted = false;
};

// Takes a line apart; nothing where it is no include of a named header. Lines in comments and in
// branches that are not compiled count like any other. [any thread]
std::optional<IncludeLine> parseIncludeLine(const std::string& line);
