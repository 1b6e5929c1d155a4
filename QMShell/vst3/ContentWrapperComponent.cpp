// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/ContentWrapperComponent.h"

#include "QMShell/gui/QMShell_GUI.h"
#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/toolkit/HostKind.h"
#include "widgets/base/QMTabContainer.h"
#include "widgets/base/QMWidget.h"

#include <utility>

ContentWrapperComponent::ContentWrapperComponent(QMShell_GUI& holder)
    : gui(holder)
    , shown(*holder.createView()) {
    setOpaque(true);
    // Else the first control would get the keyboard with the first click on any.
    setWantsKeyboardFocus(true);
    addMouseListener(this, true);
    addAndMakeVisible(shown);
    setSize(shown.getWidth(), shown.getHeight());
}

ContentWrapperComponent::~ContentWrapperComponent() {
    detach();
    removeChildComponent(&shown);
    gui.setView(nullptr);
}

void ContentWrapperComponent::attachTo(void* window) {
    giveBounds(shown.getBounds());
    addToDesktop(0, window);
    setVisible(true);
    keysForHost.setWindow(window);
}

void ContentWrapperComponent::detach() {
    keysForHost.setWindow(nullptr);
    if (!isOnDesktop())
        return;
    releaseMouse();
    removeFromDesktop();
    // Waits for the window system: if the host has destroyed its window, and ours with it, already,
    // the errors come now, where they are dropped.
    juce::Desktop::getMousePosition();
}

void ContentWrapperComponent::releaseMouse() {
    for (const juce::MouseInputSource& source : juce::Desktop::getInstance().getMouseSources()) {
        const juce::Component* const held = source.getComponentUnderMouse();
        if (!source.isDragging() || held == nullptr || (held != this && !isParentOf(held)))
            continue;
        // Outside of everything, so that a button is not taken for clicked.
        constexpr juce::Point<float> outside(-10000.0f, -10000.0f);
        auto& keys = juce::ModifierKeys::currentModifiers;
        keys = keys.withoutMouseButtons();
        getPeer()->handleMouseEvent(source.getType(), outside, keys,
                                    juce::MouseInputSource::defaultPressure,
                                    juce::MouseInputSource::defaultOrientation,
                                    juce::Time::currentTimeMillis(), {}, source.getIndex());
    }
}

void ContentWrapperComponent::giveBounds(juce::Rectangle<int> bounds) {
    isResizingView = true;
    setBounds(bounds);
    shown.setBounds(getLocalBounds());
    isResizingView = false;
}

void ContentWrapperComponent::childBoundsChanged(juce::Component*) {
    if (isResizingView)
        return;
    // The editor has taken another size. The host hears of it through the view's size listener.
    setSize(shown.getWidth(), shown.getHeight());
    if (wantsEditorBoundsAgain(hostKind()))
        setBounds(0, 0, shown.getWidth(), shown.getHeight());
}

void ContentWrapperComponent::mouseDown(const juce::MouseEvent&) {
    noteFocusOfPress();
}

void ContentWrapperComponent::mouseUp(const juce::MouseEvent&) {
    noteFocusOfPress();
}

void ContentWrapperComponent::noteFocusOfPress() {
    juce::Component* const focused = getCurrentlyFocusedComponent();
    focusOfPress = isParentOf(focused) ? focused : nullptr;
}

void ContentWrapperComponent::focusGained(FocusChangeType cause) {
    const SafePointer<juce::Component> pressed = std::exchange(focusOfPress, nullptr);
    if (cause == focusChangedDirectly && pressed != nullptr)
        pressed->grabKeyboardFocus();
}

void ContentWrapperComponent::focusOfChildComponentChanged(FocusChangeType) {
    if (!hasKeyboardFocus(true))
        focusOfPress = nullptr;
}

bool ContentWrapperComponent::keyPressed(const juce::KeyPress& key) {
    if (key.isKeyCode(juce::KeyPress::tabKey) && hasKeyboardFocus(false)) {
        if (QMWidget* const first = QMTabContainer::firstWidgetIn(shown))
            first->takeFocus();
        return true;
    }
    return keysForHost.press(key);
}

bool ContentWrapperComponent::keyStateChanged(bool isKeyDown) {
    // Else the toolkit hands a key on to the host itself on Windows as soon as it is down, before
    // it is known whether the editor has a use for its character.
    return isKeyDown || keysForHost.release();
}
