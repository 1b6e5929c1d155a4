// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/DisplayNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>

namespace {

/// What stands for a number whose size a double cannot hold.
double beyondDoubles(std::string_view digits) {
    const bool isNegative = digits.starts_with('-');
    digits.remove_prefix(isNegative ? 1 : 0);
    const std::size_t exponent = digits.find_first_of("eE");
    const bool isTiny = exponent == std::string_view::npos
                            ? digits.find_first_not_of('0') == digits.find('.')
                            : digits.substr(exponent + 1).starts_with('-');
    const double size = isTiny ? 0.0 : std::numeric_limits<double>::infinity();
    return isNegative ? -size : size;
}

} // namespace

juce::String numberWithDecimals(double number, int decimals) {
    // The largest double has 309 digits before the point.
    std::array<char, 400> text{};
    constexpr int mostDecimals = 20;
    const auto result =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed,
                      std::clamp(decimals, 0, mostDecimals));
    const juce::String shown(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
    const bool isZero = std::isfinite(number) && !shown.containsAnyOf("123456789");
    return isZero && shown.startsWithChar('-') ? shown.substring(1) : shown;
}

double roundedToResolution(double number, double resolution) {
    return resolution > 0.0 ? std::round(number / resolution) * resolution : number;
}

int decimalsOfControl(double resolution) {
    if (resolution < 0.1)
        return 2;
    return resolution < 1.0 ? 1 : 0;
}

int decimalsOfReadout(double number, double resolution) {
    int decimals = 2;
    if (resolution == 1.0)
        decimals = 0;
    if (std::abs(number) >= 100.0)
        decimals = 1;
    if (std::abs(number) >= 1000.0)
        decimals = 2;
    return decimals;
}

std::optional<double> leadingNumber(const juce::String& text) {
    const juce::String trimmed = text.trimStart();
    std::string_view digits(trimmed.toRawUTF8());
    // The conversion knows no plus sign.
    if (digits.starts_with('+') && !digits.starts_with("+-"))
        digits.remove_prefix(1);
    double number = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        number = beyondDoubles({digits.data(), static_cast<std::size_t>(end - digits.data())});
    return number;
}
