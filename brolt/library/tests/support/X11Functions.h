// SPDX-License-Identifier: GPL-3.0-or-later
// The functions of Xlib that a host's window needs. The library is opened when it is asked for, so
// that the tests run where there is none.
#pragma once

#ifndef _WIN32

#    include <X11/Xlib.h>

struct X11Functions {
    /// Null where there is no library.
    [[nodiscard]] static const X11Functions* get();

    decltype(&XOpenDisplay) openDisplay = nullptr;
    decltype(&XCloseDisplay) closeDisplay = nullptr;
    decltype(&XCreateSimpleWindow) createSimpleWindow = nullptr;
    decltype(&XChangeWindowAttributes) changeWindowAttributes = nullptr;
    decltype(&XDestroyWindow) destroyWindow = nullptr;
    decltype(&XMapRaised) mapRaised = nullptr;
    decltype(&XSelectInput) selectInput = nullptr;
    decltype(&XQueryTree) queryTree = nullptr;
    decltype(&XGetWindowAttributes) getWindowAttributes = nullptr;
    decltype(&XGetInputFocus) getInputFocus = nullptr;
    decltype(&XSendEvent) sendEvent = nullptr;
    decltype(&XKeysymToKeycode) keysymToKeycode = nullptr;
    decltype(&XLookupKeysym) lookupKeysym = nullptr;
    decltype(&XPending) pending = nullptr;
    decltype(&XNextEvent) nextEvent = nullptr;
    decltype(&XSync) sync = nullptr;
    decltype(&XFree) free = nullptr;
};

#endif
