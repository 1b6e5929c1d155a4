// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/ContentWrapperComponent.h"

#include "QMShell/gui/QMShell_GUI.h"
#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/toolkit/HostKind.h"
#include "widgets/base/QMWidget.h"

namespace {

/// The one with the smallest tab index; null without one.
QMWidget* firstWidgetForKeyboard(juce::Component& component) {
    QMWidget* first = nullptr;
    for (juce::Component* const child : component.getChildren()) {
        auto* candidate = dynamic_cast<QMWidget*>(child);
        if (candidate == nullptr || !candidate->canTakeKeyboardFocus() || !candidate->isEnabled() ||
            !candidate->isVisible())
            candidate = firstWidgetForKeyboard(*child);
        if (candidate != nullptr &&
            (first == nullptr || candidate->getTabIndex() < first->getTabIndex()))
            first = candidate;
    }
    return first;
}

} // namespace

ContentWrapperComponent::ContentWrapperComponent(QMShell_GUI& holder)
    : gui(holder)
    , shown(*holder.createView()) {
    setOpaque(true);
    // Else the first control would get the keyboard with the first click on any.
    setWantsKeyboardFocus(true);
    addAndMakeVisible(shown);
    setSize(shown.getWidth(), shown.getHeight());
}

ContentWrapperComponent::~ContentWrapperComponent() {
    detach();
    removeChildComponent(&shown);
    gui.setView(nullptr);
}

void ContentWrapperComponent::attachTo(void* window) {
    addToDesktop(0, window);
    setVisible(true);
    keysForHost.setWindow(window);
}

void ContentWrapperComponent::detach() {
    keysForHost.setWindow(nullptr);
    if (isOnDesktop())
        removeFromDesktop();
}

void ContentWrapperComponent::resized() {
    isResizingView = true;
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

bool ContentWrapperComponent::keyPressed(const juce::KeyPress& key) {
    if (key.isKeyCode(juce::KeyPress::tabKey) && hasKeyboardFocus(false)) {
        if (QMWidget* const first = firstWidgetForKeyboard(shown))
            first->takeFocus();
        return true;
    }
    return keysForHost.press(key);
}

bool ContentWrapperComponent::keyStateChanged(bool isKeyDown) {
    return !isKeyDown && keysForHost.release();
}
