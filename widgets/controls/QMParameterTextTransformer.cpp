// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMParameterTextTransformer.h"

#include "widgets/controls/DisplayNumber.h"

#include <cmath>

namespace {

constexpr double thousand = 1.0e3;
constexpr double million = 1.0e6;
constexpr double thousandth = 1.0e-3;

} // namespace

juce::String QMParameterTextTransformer::formatValue(double value, int decimals) const {
    const double size = std::abs(value);
    if (std::isinf(value))
        return numberWithDecimals(value, decimals);
    if (size >= thousand)
        return numberWithDecimals(value / thousand, decimals) + "k";
    if (size > 0.0 && size < thousandth)
        return numberWithDecimals(value * thousand, decimals) + "m";
    return numberWithDecimals(value, decimals);
}

double QMParameterTextTransformer::parseText(const juce::String& text) const {
    const juce::String typed = text.replaceCharacter(',', '.');
    double value = leadingNumber(typed).value_or(0.0);
    for (int i = typed.length(); --i >= 0;) {
        switch (typed[i]) {
        case 'k':
        case 'K':
            value *= thousand;
            break;
        case 'm':
            value /= thousand;
            break;
        case 'u':
            value /= million;
            break;
        case 'M':
            value *= million;
            break;
        default:
            break;
        }
    }
    return value;
}
