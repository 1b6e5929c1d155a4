// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard: which widget has it, what keys do. What no key is for goes on to the host.
#include "widgets/base/QMTabContainer.h"
#include "widgets/base/QMWidget.h"

namespace {

constexpr int stepsOfAPage = 10;

bool beginsANumber(juce::juce_wchar character) {
    return (character >= '0' && character <= '9') || character == '-' || character == '.' ||
           character == ',';
}

} // namespace

void QMWidget::setCanTakeFocus(bool flag) {
    canTakeFocus = flag;
    setWantsKeyboardFocus(flag);
}

void QMWidget::focusAt(int) {
    takeFocus();
}

void QMWidget::focusNext(bool backwards) {
    if (auto* const container = findParentComponentOfClass<QMTabContainer>()) {
        QMWidget* const next =
            backwards ? container->widgetBefore(*this) : container->widgetAfter(*this);
        if (next != nullptr)
            next->takeFocus();
        return;
    }
    const juce::Component* const parent = getParentComponent();
    if (parent == nullptr)
        return;
    const int count = parent->getNumChildComponents();
    const int step = backwards ? 1 : -1;
    const int start = parent->getIndexOfChildComponent(this);
    for (int i = (start + step + count) % count; i != start; i = (i + step + count) % count) {
        auto* const sibling = dynamic_cast<QMWidget*>(parent->getChildComponent(i));
        if (sibling == nullptr || !sibling->canTakeKeyboardFocus() || !sibling->isEnabled())
            continue;
        const int positions = sibling->getNumFocusPositions();
        if (positions > 0) {
            sibling->focusAt(backwards ? positions - 1 : 0);
            return;
        }
    }
}

void QMWidget::takeFocus() {
    if (!canTakeFocus || !isEnabled())
        return;
    if (auto* const viewport = findParentComponentOfClass<juce::Viewport>();
        viewport != nullptr && viewport->getViewedComponent() != nullptr) {
        const juce::Rectangle<int> area =
            viewport->getViewedComponent()->getLocalArea(this, getLocalBounds());
        const juce::Rectangle<int> view = viewport->getViewArea();
        juce::Point<int> position = view.getPosition();
        if (area.getX() < view.getX())
            position.x -= view.getX() - area.getX();
        else if (area.getRight() > view.getRight())
            position.x += area.getRight() - view.getRight();
        if (area.getY() < view.getY())
            position.y -= view.getY() - area.getY();
        else if (area.getBottom() > view.getBottom())
            position.y += area.getBottom() - view.getBottom();
        if (position != view.getPosition())
            viewport->setViewPosition(position);
    }
    grabKeyboardFocus();
}

bool QMWidget::keyPressed(const juce::KeyPress& key) {
    using juce::KeyPress;
    if (key.isKeyCode(KeyPress::tabKey)) {
        focusNext(key.getModifiers().isShiftDown());
        return true;
    }
    if (key.isKeyCode(KeyPress::escapeKey)) {
        giveAwayKeyboardFocus();
        return true;
    }
    if (!isEnabled())
        return false;
    if (key.isKeyCode(KeyPress::returnKey))
        return activate();
    if (!isEditable() || getParameterID(0) == noParameter)
        return false;
    const bool fine = key.getModifiers().isCtrlDown() || key.getModifiers().isShiftDown();
    const auto stepBy = [&](int count, bool up) {
        beginTouch(0);
        for (int i = 0; i < count; ++i)
            up ? stepUp(fine) : stepDown(fine);
        endTouch(0);
        return true;
    };
    if (key.isKeyCode(KeyPress::upKey) || key.isKeyCode(KeyPress::rightKey))
        return stepBy(1, true);
    if (key.isKeyCode(KeyPress::downKey) || key.isKeyCode(KeyPress::leftKey))
        return stepBy(1, false);
    if (key.isKeyCode(KeyPress::pageUpKey))
        return stepBy(stepsOfAPage, true);
    if (key.isKeyCode(KeyPress::pageDownKey))
        return stepBy(stepsOfAPage, false);
    if (key.isKeyCode(KeyPress::homeKey)) {
        writeAsGesture(0, getSlotMinimum(0));
        return true;
    }
    if (key.isKeyCode(KeyPress::endKey)) {
        writeAsGesture(0, getSlotMaximum(0));
        return true;
    }
    const bool hasCommand = key.getModifiers().isCommandDown() || key.getModifiers().isAltDown();
    return !hasCommand && beginsANumber(key.getTextCharacter()) &&
           beginTextEntry(key.getTextCharacter());
}

void QMWidget::focusGained(FocusChangeType) {
    repaint();
}

void QMWidget::focusLost(FocusChangeType) {
    repaint();
}

void QMWidget::paintOverChildren(juce::Graphics& g) {
    if (!canTakeFocus || !hasKeyboardFocus(false))
        return;
    g.setColour(getContrastColourWeak());
    g.drawRoundedRectangle(getLocalArea().toFloat().reduced(0.5f), 3.0f, 1.0f);
}
