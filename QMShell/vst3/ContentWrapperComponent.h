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

    void resized() override;
    void childBoundsChanged(juce::Component* child) override;
    /// Of keys that the editor has no use for.
    bool keyPressed(const juce::KeyPress& key) override;
    bool keyStateChanged(bool isKeyDown) override;

private:
    QMShell_GUI& gui;
    QMShell_ViewComponent& shown;
    KeysForHost keysForHost;
    bool isResizingView = false;
};
