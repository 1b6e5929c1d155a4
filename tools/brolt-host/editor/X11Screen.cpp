// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/X11Screen.h"

#ifndef _WIN32

#    include "tools/brolt-host/HostError.h"
#    include "tools/brolt-host/editor/X11EditorWindow.h"

#    include <cstdlib>

namespace {

int ignoreError(Display*, XErrorEvent*) {
    return 0;
}

Display* connect() {
    Display* const display = XOpenDisplay(nullptr);
    if (display != nullptr)
        return display;
    const char* const name = std::getenv("DISPLAY");
    if (name == nullptr || *name == '\0')
        throw HostError("there is no screen to open a window on (DISPLAY is not set)");
    throw HostError("there is no screen to open a window on (DISPLAY " + std::string(name) +
                    " cannot be reached)");
}

} // namespace

X11Screen::X11Screen()
    : display(connect())
    , previousHandler(XSetErrorHandler(ignoreError)) {}

X11Screen::~X11Screen() {
    XCloseDisplay(display);
    XSetErrorHandler(previousHandler);
}

std::unique_ptr<EditorWindow> X11Screen::openWindow(HostMessages& messages,
                                                    const std::string& title, ViewSize size,
                                                    bool isResizable) {
    return std::make_unique<X11EditorWindow>(*this, messages, title, size, isResizable);
}

std::unique_ptr<EditorScreen> openEditorScreen() {
    return std::make_unique<X11Screen>();
}

#endif
