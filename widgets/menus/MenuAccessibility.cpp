// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/MenuAccessibility.h"

namespace {

class TextOfWidget final : public juce::AccessibilityTextValueInterface {
public:
    explicit TextOfWidget(QMWidget& shown)
        : widget(shown) {}

    // What can be chosen is in the menu.
    bool isReadOnly() const override { return true; }

    juce::String getCurrentValueAsString() const override { return widget.getDisplayText(); }

    void setValueAsString(const juce::String&) override {}

private:
    QMWidget& widget;
};

juce::AccessibilityActions actionsOf(QMWidget& widget) {
    const auto open = [&widget] { widget.activate(); };
    return juce::AccessibilityActions()
        .addAction(juce::AccessibilityActionType::press, open)
        .addAction(juce::AccessibilityActionType::showMenu, open)
        .addAction(juce::AccessibilityActionType::focus, [&widget] { widget.takeFocus(); });
}

} // namespace

MenuAccessibility::MenuAccessibility(QMWidget& shown)
    : AccessibilityHandler(shown, juce::AccessibilityRole::comboBox, actionsOf(shown),
                           Interfaces{std::make_unique<TextOfWidget>(shown)}) {}

juce::AccessibleState MenuAccessibility::getCurrentState() const {
    return AccessibilityHandler::getCurrentState().withExpandable().withCollapsed();
}
