// SPDX-License-Identifier: GPL-3.0-or-later
// Turns values into the text of a readout and typed text into values. [message thread]
#pragma once

#include <juce_core/juce_core.h>

class QMParameterTextTransformer {
public:
    virtual ~QMParameterTextTransformer() = default;

    /// Thousands with "k", what is below a thousandth with "m": a million reads 1000.00k and
    /// 0.0000005 reads 0.00m, which users have come to know.
    [[nodiscard]] virtual juce::String formatValue(double value, int decimals) const;

    /// The number the text begins with, a comma in it being a decimal point, times what each letter
    /// anywhere in the text stands for: k and K 1000, m 1/1000, u 1/1000000, M 1000000. A text that
    /// begins with no number is 0 (see leadingNumber).
    [[nodiscard]] virtual double parseText(const juce::String& text) const;
};
