// SPDX-License-Identifier: GPL-3.0-or-later
//
// The X server that DISPLAY names: a connection of this host's own, beside the one that a plug-in's
// toolkit makes.

#pragma once

#ifndef _WIN32

#    include "tools/brolt-host/editor/EditorScreen.h"
#    include "tools/brolt-host/editor/X11Headers.h"

class X11Screen : public EditorScreen {
public:
    /// Throws HostError when the server cannot be reached. From now on the server's complaints end
    /// no program: a plug-in's windows come and go without asking us. [message thread]
    X11Screen();
    ~X11Screen() override;

    X11Screen(const X11Screen&) = delete;
    X11Screen& operator=(const X11Screen&) = delete;

    std::unique_ptr<EditorWindow> openWindow(HostMessages& messages, const std::string& title,
                                             ViewSize size, bool isResizable) override;

    [[nodiscard]] Display* connection() const { return display; }

    /// The number of a name, which is made where the server does not know it. [message thread]
    [[nodiscard]] Atom atom(const char* name) const { return XInternAtom(display, name, False); }

private:
    Display* display;
    XErrorHandler previousHandler;
};

#endif
