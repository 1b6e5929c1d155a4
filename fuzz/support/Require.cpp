// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/support/Require.h"

#include <cstdio>
#include <cstdlib>

void require(bool condition, const char* message) {
    if (condition)
        return;
    std::fprintf(stderr, "does not hold: %s\n", message);
    std::abort();
}

void requireEqual(const std::string& actual, const std::string& expected, const char* message) {
    if (actual == expected)
        return;
    std::fprintf(stderr, "differs: %s\nactual   %s\nexpected %s\n", message, actual.c_str(),
                 expected.c_str());
    std::abort();
}
