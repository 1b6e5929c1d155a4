// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of parameters whose values are linear amplitudes and which are shown in decibels.
// [message thread]
#pragma once

#include "widgets/controls/QMParameterTextTransformer.h"

class QMLogParameterTextTransformer final : public QMParameterTextTransformer {
public:
    /// "-inf" for an amplitude of 0, and below.
    [[nodiscard]] juce::String formatValue(double value, int decimals) const override;
    [[nodiscard]] double parseText(const juce::String& text) const override;
};
