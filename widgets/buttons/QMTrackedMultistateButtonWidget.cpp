// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

#include "widgets/buttons/ButtonDrawing.h"
#include "widgets/buttons/IQMTrackedButtonListener.h"
#include "widgets/buttons/ToggleAccessibility.h"
#include "widgets/drawing/WidgetStyle.h"

#include <algorithm>
#include <cmath>
#include <utility>

QMTrackedMultistateButtonWidget::QMTrackedMultistateButtonWidget() {
    setCanTakeFocus(true);
}

QMTrackedMultistateButtonWidget::QMTrackedMultistateButtonWidget(int fixedStateCount)
    : stateCount(fixedStateCount)
    , stateCountIsFixed(true) {
    setCanTakeFocus(true);
}

void QMTrackedMultistateButtonWidget::setStateCount(int count) {
    stateCount = std::max(0, count);
    if (state >= stateCount)
        showState(0);
}

void QMTrackedMultistateButtonWidget::setItems(const juce::StringArray& texts, int shownItem) {
    items = texts;
    if (!stateCountIsFixed)
        stateCount = texts.size();
    state = stateCount > 0 ? juce::jlimit(0, stateCount - 1, shownItem) : 0;
    stateChanged();
}

int QMTrackedMultistateButtonWidget::stateOfValue(double value) const {
    // The remainder first: the value may be beyond what an integer holds.
    const int whole = valueMap.stateOfValue
                          ? valueMap.stateOfValue(value) % stateCount
                          : static_cast<int>(std::fmod(std::trunc(value), stateCount));
    return (whole + stateCount) % stateCount;
}

double QMTrackedMultistateButtonWidget::valueOfState(int ofState) const {
    return valueMap.valueOfState ? valueMap.valueOfState(ofState) : ofState;
}

double QMTrackedMultistateButtonWidget::getSlotValue(std::uint32_t slot) const {
    return slot == 0 ? valueOfState(state) : 0.0;
}

void QMTrackedMultistateButtonWidget::setParameterValue(std::uint32_t slot, double value,
                                                        bool notify) {
    if (slot != 0 || stateCount == 0 || !std::isfinite(value))
        return;
    const int newState = stateOfValue(value);
    if (newState == state)
        return;
    showState(newState);
    if (!notify)
        return;
    const double written = valueOfState(newState);
    const juce::Component::SafePointer<QMTrackedMultistateButtonWidget> self(this);
    QMWidget::setParameterValue(0, written, true);
    if (self != nullptr && listener != nullptr)
        listener->buttonValueChanged(*this, written);
    if (self == nullptr || !changeCallback)
        return;
    // The callback may replace itself.
    const ChangeCallback callback = changeCallback;
    callback(*this, written);
}

void QMTrackedMultistateButtonWidget::commit() {
    if (stateCount == 0)
        return;
    const int shown = state;
    // So that the value counts as a new one though its state is shown already.
    state = -1;
    const juce::Component::SafePointer<QMTrackedMultistateButtonWidget> self(this);
    setParameterValue(0, valueOfState(shown), true);
    if (self != nullptr && state < 0)
        state = shown;
}

void QMTrackedMultistateButtonWidget::showState(int newState) {
    if (newState == state)
        return;
    state = newState;
    stateChanged();
}

void QMTrackedMultistateButtonWidget::stateChanged() {
    if (isDeferringUpdates())
        repaintIsDue = true;
    else
        repaint();
    tellAccessibility();
}

void QMTrackedMultistateButtonWidget::flushDeferredUpdates() {
    if (std::exchange(repaintIsDue, false))
        repaint();
}

void QMTrackedMultistateButtonWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    repaint();
}

juce::String QMTrackedMultistateButtonWidget::getDisplayText() const {
    const juce::String text = itemText(state);
    if (text.isNotEmpty())
        return text;
    if (stateCount == 2)
        return state == 1 ? "On" : "Off";
    return stateCount == 0 ? juce::String() : juce::String(state + 1);
}

juce::String QMTrackedMultistateButtonWidget::getTooltip() {
    const juce::String ofItem = itemHelpTexts[state];
    return ofItem.isEmpty() ? QMWidget::getTooltip() : ofItem;
}

void QMTrackedMultistateButtonWidget::stepUp(bool) {
    if (!locked && state < stateCount - 1)
        setParameterValue(0, valueOfState(state + 1), true);
}

void QMTrackedMultistateButtonWidget::stepDown(bool) {
    if (!locked && state > 0)
        setParameterValue(0, valueOfState(state - 1), true);
}

juce::Font QMTrackedMultistateButtonWidget::textFont() const {
    const float height = std::min(WidgetStyle::fontHeight * getMagnification(),
                                  0.7f * static_cast<float>(getHeight()));
    return WidgetStyle::get().font(TypefaceStyle::plain, std::max(1.0f, height));
}

int QMTrackedMultistateButtonWidget::getIdealWidth() const {
    const juce::Font font = textFont();
    float widest = items.isEmpty() ? font.getStringWidthFloat(getName()) : 0.0f;
    for (const juce::String& text : items)
        widest = std::max(widest, font.getStringWidthFloat(text));
    return static_cast<int>(std::ceil(widest + font.getHeight()));
}

void QMTrackedMultistateButtonWidget::paint(juce::Graphics& g) {
    const juce::String text = items.isEmpty() ? getName() : itemText(state);
    ButtonDrawing::drawBody(g, getLocalArea().toFloat(), getBaseColour(), pressedLook);
    g.setColour(getContrastColour().withMultipliedAlpha(opacity()));
    g.setFont(textFont());
    g.drawFittedText(text, getLocalArea().reduced(2, 0), juce::Justification::centred, 1);
}

void QMTrackedMultistateButtonWidget::paintOverChildren(juce::Graphics& g) {
    ButtonDrawing::drawMarks(g, *this);
    QMWidget::paintOverChildren(g);
}

void QMTrackedMultistateButtonWidget::enablementChanged() {
    repaint();
}

juce::AccessibilityRole QMTrackedMultistateButtonWidget::accessibleRole() const {
    return stateCount == 2 && !staticState ? juce::AccessibilityRole::toggleButton
                                           : juce::AccessibilityRole::button;
}

std::unique_ptr<juce::AccessibilityHandler>
QMTrackedMultistateButtonWidget::createAccessibilityHandler() {
    if (accessibleRole() == juce::AccessibilityRole::toggleButton)
        return std::make_unique<ToggleAccessibility>(*this);
    return QMWidget::createAccessibilityHandler();
}
