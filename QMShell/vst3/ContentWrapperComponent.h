// SPDX-License-Identifier: GPL-3.0-or-later
// What is attached to the window that a host gives an editor: the editor's view, as large as it is.
// [message thread]
#pragma once

#include "QMShell/toolkit/KeysForHost.h"

#include <juce_gui_basics/juce_gui_basics.h>

class QMShell_GUI;
class QMShell_ViewComponent;

class ContentWrapperComponent final : public juce::Component {
public:
    /// Has the holder make the view.
    explicit ContentWrapperComponent(QMShell_GUI& holder);
    ~ContentWrapperComponent() override;

    [[nodiscard]] QMShell_ViewComponent& view() { return shown; }

    /// Becomes a child of the host's window.
    void attachTo(void* window);
    void detach();

    /// A size from the host: the view fills it. A window alone decides nothing: one that the host
    /// has destroyed reports any size.
    void giveBounds(juce::Rectangle<int> bounds);

    void childBoundsChanged(juce::Component* child) override;
    /// Of presses on anything in the editor.
    void mouseDown(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;
    void focusGained(FocusChangeType cause) override;
    void focusOfChildComponentChanged(FocusChangeType cause) override;
    /// Of keys that the editor has no use for.
    bool keyPressed(const juce::KeyPress& key) override;
    bool keyStateChanged(bool isKeyDown) override;

private:
    /// The button that is held down in a window will never come up there once the window is gone:
    /// what it moves ends here, and with it the gesture that the host was told of.
    void releaseMouse();

    /// X11 tells a window that it has got the keyboard only after the press that it got it by. The
    /// toolkit then takes it from the control that was pressed.
    void noteFocusOfPress();

    QMShell_GUI& gui;
    QMShell_ViewComponent& shown;
    KeysForHost keysForHost;
    SafePointer<juce::Component> focusOfPress;
    bool isResizingView = false;
};
