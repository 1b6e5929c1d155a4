// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/ValueText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace {

std::string_view withoutLeadingBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// What the prefix at the beginning of the text multiplies by.
double prefixFactor(std::string_view text) {
    constexpr std::string_view micro = "\xC2\xB5";   // the micro sign
    constexpr std::string_view greekMu = "\xCE\xBC"; // looks the same
    if (text.starts_with('k') || text.starts_with('K'))
        return 1e3;
    if (text.starts_with('M'))
        return 1e6;
    if (text.starts_with('m'))
        return 1e-3;
    if (text.starts_with('u') || text.starts_with(micro) || text.starts_with(greekMu))
        return 1e-6;
    return 1.0;
}

} // namespace

namespace QM {

std::optional<double> parseValueText(std::string_view text) {
    std::string number(withoutLeadingBlanks(text));
    std::replace(number.begin(), number.end(), ',', '.');
    const char* begin = number.data();
    const char* const end = begin + number.size();
    if (number.starts_with('+') && !number.starts_with("+-"))
        ++begin;
    double value = 0.0;
    const auto [rest, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || !std::isfinite(value))
        return std::nullopt;
    const std::string_view after(rest, static_cast<std::size_t>(end - rest));
    value *= prefixFactor(withoutLeadingBlanks(after));
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace QM
