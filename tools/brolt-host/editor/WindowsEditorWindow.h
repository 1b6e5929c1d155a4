// SPDX-License-Identifier: GPL-3.0-or-later
//
// A top-level window on Windows.

#pragma once

#ifdef _WIN32

#    include "tools/brolt-host/editor/EditorWindow.h"

#    include <string>

#    include <windows.h>

class WindowsEditorWindow : public EditorWindow {
public:
    /// Throws HostError when the system refuses. [message thread]
    WindowsEditorWindow(const std::string& title, ViewSize size, bool isResizable);
    ~WindowsEditorWindow() override;

    WindowsEditorWindow(const WindowsEditorWindow&) = delete;
    WindowsEditorWindow& operator=(const WindowsEditorWindow&) = delete;

    [[nodiscard]] void* nativeHandle() const override { return window; }

    [[nodiscard]] Steinberg::FIDString platformType() const override;
    void show(IEditorWindowListener* whom) override;
    void setContentSize(ViewSize size) override;

    /// The host's messages are the window's.
    void deliverEvents() override {}

    [[nodiscard]] bool isCloseRequested() const override { return closeIsRequested; }

    /// True when the message is dealt with. For the window's procedure. [message thread]
    bool handle(UINT message, WPARAM first, LPARAM second);

private:
    [[nodiscard]] ViewSize wholeSize(ViewSize content) const;
    void takeUserSize(ViewSize size);
    void constrain(WPARAM edge, RECT& whole) const;

    DWORD style;
    ViewSize contentSize;
    HWND window = nullptr;
    IEditorWindowListener* listener = nullptr;
    bool closeIsRequested = false;
};

#endif
