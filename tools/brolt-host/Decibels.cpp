// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/Decibels.h"

#include <array>
#include <cmath>
#include <cstdio>

double decibels(double linear) {
    return 20.0 * std::log10(linear);
}

double linearFromDecibels(double level) {
    return std::pow(10.0, level / 20.0);
}

std::string peakText(double linear) {
    if (std::isnan(linear))
        return "not a number";
    if (std::isinf(linear))
        return "infinite";
    if (linear == 0.0)
        return "silence";
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.1f dBFS", decibels(linear));
    return text.data();
}
