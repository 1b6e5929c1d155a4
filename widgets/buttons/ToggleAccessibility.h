// SPDX-License-Identifier: GPL-3.0-or-later
// A button with two states as a screen reader sees it: something that can be on or off.
// [message thread]
#pragma once

#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

class ToggleAccessibility final : public juce::AccessibilityHandler {
public:
    explicit ToggleAccessibility(QMTrackedMultistateButtonWidget& shown);

    [[nodiscard]] juce::AccessibleState getCurrentState() const override;

private:
    QMTrackedMultistateButtonWidget& button;
};
