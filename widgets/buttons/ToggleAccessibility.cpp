// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/ToggleAccessibility.h"

namespace {

juce::AccessibilityActions actionsOf(QMTrackedMultistateButtonWidget& button) {
    const auto activate = [&button] { button.activate(); };
    return juce::AccessibilityActions()
        .addAction(juce::AccessibilityActionType::press, activate)
        .addAction(juce::AccessibilityActionType::toggle, activate)
        .addAction(juce::AccessibilityActionType::focus, [&button] { button.takeFocus(); });
}

} // namespace

ToggleAccessibility::ToggleAccessibility(QMTrackedMultistateButtonWidget& shown)
    : AccessibilityHandler(shown, juce::AccessibilityRole::toggleButton, actionsOf(shown))
    , button(shown) {}

juce::AccessibleState ToggleAccessibility::getCurrentState() const {
    const juce::AccessibleState usual = AccessibilityHandler::getCurrentState().withCheckable();
    return button.getState() == 1 ? usual.withChecked() : usual;
}
