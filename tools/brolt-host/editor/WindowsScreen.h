// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop on Windows: the class of this host's windows, and what plug-ins expect of their
// host's window thread.

#pragma once

#ifdef _WIN32

#    include "tools/brolt-host/editor/EditorScreen.h"

class WindowsScreen : public EditorScreen {
public:
    static constexpr const wchar_t* windowClass = L"brolt-host";

    /// [message thread]
    WindowsScreen();
    ~WindowsScreen() override;

    WindowsScreen(const WindowsScreen&) = delete;
    WindowsScreen& operator=(const WindowsScreen&) = delete;

    std::unique_ptr<EditorWindow> openWindow(HostMessages& messages, const std::string& title,
                                             ViewSize size, bool isResizable) override;
};

#endif
