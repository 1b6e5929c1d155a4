// SPDX-License-Identifier: GPL-3.0-or-later
// A widget with a menu as a screen reader sees it: something that opens and has a text for its
// value. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"

class MenuAccessibility final : public juce::AccessibilityHandler {
public:
    explicit MenuAccessibility(QMWidget& shown);

    [[nodiscard]] juce::AccessibleState getCurrentState() const override;
};
