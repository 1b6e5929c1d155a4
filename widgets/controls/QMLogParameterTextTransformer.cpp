// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMLogParameterTextTransformer.h"

#include "widgets/controls/DisplayNumber.h"

#include <algorithm>
#include <cmath>

juce::String QMLogParameterTextTransformer::formatValue(double value, int decimals) const {
    return numberWithDecimals(20.0 * std::log10(std::max(value, 0.0)), decimals);
}

double QMLogParameterTextTransformer::parseText(const juce::String& text) const {
    return std::pow(10.0, QMParameterTextTransformer::parseText(text) / 20.0);
}
