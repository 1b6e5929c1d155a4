// SPDX-License-Identifier: GPL-3.0-or-later
//
// A window of this host that takes a plug-in's view in, whatever the window system.

#pragma once

#include "tools/brolt-host/editor/ViewSize.h"

#include <pluginterfaces/base/ftypes.h>

/// What happens to a window at its user's hands. [message thread]
class IEditorWindowListener {
public:
    virtual ~IEditorWindowListener() = default;

    /// The size next to the wanted one that the content can have.
    virtual ViewSize possibleSize(ViewSize wanted) = 0;

    /// The user gave the content this size.
    virtual void contentResized(ViewSize size) = 0;
};

/// All of it, and its end, is for the thread that made it. [message thread]
class EditorWindow {
public:
    EditorWindow() = default;
    virtual ~EditorWindow() = default;
    EditorWindow(const EditorWindow&) = delete;
    EditorWindow& operator=(const EditorWindow&) = delete;

    /// The window in the form that the plug-in's view is handed its parent in.
    [[nodiscard]] virtual void* nativeHandle() const = 0;

    /// The name of that form, a constant of the VST3 interface.
    [[nodiscard]] virtual Steinberg::FIDString platformType() const = 0;

    /// Shows the window, whose sizes by the user are told to the listener from now on. The listener
    /// must stay until it is replaced; null is nobody.
    virtual void show(IEditorWindowListener* whom) = 0;

    /// Gives the inner part another size, which the listener is not told.
    virtual void setContentSize(ViewSize size) = 0;

    /// Handles what the window system has sent and nobody has looked at yet. To be called before
    /// each wait.
    virtual void deliverEvents() = 0;

    /// Whether the user wants the window closed. It stays open: views go before their windows.
    [[nodiscard]] virtual bool isCloseRequested() const = 0;
};
