// SPDX-License-Identifier: GPL-3.0-or-later
//
// The screen that windows are opened on.

#pragma once

#include "tools/brolt-host/editor/EditorWindow.h"
#include "tools/brolt-host/vst3/HostMessages.h"

#include <memory>
#include <string>

class EditorScreen {
public:
    EditorScreen() = default;
    /// After its windows, and after every library that may have windows of its own. [message
    /// thread]
    virtual ~EditorScreen() = default;
    EditorScreen(const EditorScreen&) = delete;
    EditorScreen& operator=(const EditorScreen&) = delete;

    /// A window that is not shown yet. `messages` delivers its events and must outlive it, as the
    /// screen must. Throws HostError. [message thread]
    virtual std::unique_ptr<EditorWindow> openWindow(HostMessages& messages,
                                                     const std::string& title, ViewSize size,
                                                     bool isResizable) = 0;
};

/// The screen of the user who started the program. Throws HostError when there is none that can be
/// reached. [message thread]
std::unique_ptr<EditorScreen> openEditorScreen();
