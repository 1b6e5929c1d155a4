// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/XEmbedding.h"

#ifndef _WIN32

namespace {

// The protocol's messages.
constexpr long embeddedNotify = 0;
constexpr long windowActivate = 1;
constexpr long windowDeactivate = 2;
constexpr long focusIn = 4;
constexpr long focusOut = 5;

constexpr long protocolVersion = 0;

} // namespace

XEmbedding::XEmbedding(const X11Screen& screen, Window embedderWindow)
    : display(screen.connection())
    , messageType(screen.atom("_XEMBED"))
    , embedder(embedderWindow) {}

void XEmbedding::handle(const XEvent& event) {
    switch (event.type) {
    case CreateNotify:
        if (event.xcreatewindow.parent == embedder)
            embed(event.xcreatewindow.window);
        break;
    case ReparentNotify:
        if (event.xreparent.parent == embedder)
            embed(event.xreparent.window);
        break;
    case DestroyNotify:
        if (event.xdestroywindow.window == embedded)
            embedded = 0;
        break;
    case FocusIn:
        tellFocus(true);
        break;
    case FocusOut:
        tellFocus(false);
        break;
    case KeyPress:
    case KeyRelease:
        forwardKey(event);
        break;
    default:
        break;
    }
}

void XEmbedding::embed(Window window) {
    embedded = window;
    send(embeddedNotify, 0, static_cast<long>(embedder), protocolVersion);
}

void XEmbedding::tellFocus(bool hasFocus) {
    send(hasFocus ? windowActivate : windowDeactivate, 0, 0, 0);
    send(hasFocus ? focusIn : focusOut, 0, 0, 0);
}

/// Keys arrive here when the pointer is elsewhere.
void XEmbedding::forwardKey(const XEvent& event) {
    if (embedded == 0 || event.xkey.window != embedder)
        return;
    XEvent copy = event;
    copy.xkey.window = embedded;
    XSendEvent(display, embedded, False, NoEventMask, &copy);
}

void XEmbedding::send(long message, long detail, long data1, long data2) {
    if (embedded == 0)
        return;
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = embedded;
    event.xclient.message_type = messageType;
    event.xclient.format = 32;
    event.xclient.data.l[0] = CurrentTime;
    event.xclient.data.l[1] = message;
    event.xclient.data.l[2] = detail;
    event.xclient.data.l[3] = data1;
    event.xclient.data.l[4] = data2;
    XSendEvent(display, embedded, False, NoEventMask, &event);
}

#endif
