// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of a widget: its name, the text of its value, its range, and what
// can be done with it.
#include "widgets/base/QMWidget.h"

namespace {

class ValueOfWidget final : public juce::AccessibilityValueInterface {
public:
    explicit ValueOfWidget(QMWidget& shown, std::function<void(double)> writer)
        : widget(shown)
        , write(std::move(writer)) {}

    bool isReadOnly() const override { return !widget.isEditable() || !widget.isEnabled(); }

    double getCurrentValue() const override { return widget.getSlotValue(0); }

    juce::String getCurrentValueAsString() const override { return widget.getDisplayText(); }

    void setValue(double newValue) override {
        if (!isReadOnly())
            write(juce::jlimit(widget.getSlotMinimum(0), widget.getSlotMaximum(0), newValue));
    }

    void setValueAsString(const juce::String& newValue) override {
        setValue(newValue.replaceCharacter(',', '.').getDoubleValue());
    }

    AccessibleValueRange getRange() const override {
        const double minimum = widget.getSlotMinimum(0);
        const double maximum = widget.getSlotMaximum(0);
        return {{minimum, maximum}, (maximum - minimum) / 100.0};
    }

private:
    QMWidget& widget;
    std::function<void(double)> write;
};

} // namespace

std::unique_ptr<juce::AccessibilityHandler> QMWidget::createAccessibilityHandler() {
    if (accessibleRole() == juce::AccessibilityRole::unspecified)
        return std::make_unique<juce::AccessibilityHandler>(*this,
                                                            juce::AccessibilityRole::unspecified);
    juce::AccessibilityActions actions;
    if (canTakeFocus) {
        actions.addAction(juce::AccessibilityActionType::focus, [this] { takeFocus(); });
        actions.addAction(juce::AccessibilityActionType::press, [this] { activate(); });
    }
    if (getParameterID(0) == noParameter && getNumParameterSlots() == 0)
        return std::make_unique<juce::AccessibilityHandler>(*this, accessibleRole(), actions);
    return std::make_unique<juce::AccessibilityHandler>(
        *this, accessibleRole(), actions,
        juce::AccessibilityHandler::Interfaces{std::make_unique<ValueOfWidget>(
            *this, [this](double value) { writeAsGesture(0, value); })});
}

void QMWidget::tellAccessibility() {
    if (juce::AccessibilityHandler* const handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent(juce::AccessibilityEvent::valueChanged);
}
