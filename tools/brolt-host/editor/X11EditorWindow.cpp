// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/X11EditorWindow.h"

#ifndef _WIN32

namespace {

unsigned int extent(int pixels) {
    return static_cast<unsigned int>(pixels);
}

} // namespace

X11EditorWindow::X11EditorWindow(X11Screen& screen, HostMessages& hostMessages,
                                 const std::string& title, ViewSize size, bool userMayResize)
    : display(screen.connection())
    , messages(hostMessages)
    , protocols(screen.atom("WM_PROTOCOLS"))
    , deleteWindow(screen.atom("WM_DELETE_WINDOW"))
    , isResizable(userMayResize)
    , contentSize(size)
    , window(createWindow(size))
    , embedding(screen, window) {
    setTitle(screen, title);
    setProtocols();
    setSizeHints(size);
    // The plug-in uses the window over a connection of its own, which may be the quicker one.
    XSync(display, False);
    messages.runLoop().registerEventHandler(this, ConnectionNumber(display));
}

X11EditorWindow::~X11EditorWindow() {
    messages.runLoop().unregisterEventHandler(this);
    XDestroyWindow(display, window);
    XSync(display, False);
}

Window X11EditorWindow::createWindow(ViewSize size) const {
    const int screen = DefaultScreen(display);
    const Window made =
        XCreateSimpleWindow(display, RootWindow(display, screen), 0, 0, extent(size.width),
                            extent(size.height), 0, 0, BlackPixel(display, screen));
    XSelectInput(display, made,
                 StructureNotifyMask | SubstructureNotifyMask | FocusChangeMask | KeyPressMask |
                     KeyReleaseMask);
    return made;
}

void X11EditorWindow::setTitle(const X11Screen& screen, const std::string& title) {
    // The first for old window managers, without characters beyond ASCII; the second is UTF-8.
    XStoreName(display, window, title.c_str());
    XChangeProperty(display, window, screen.atom("_NET_WM_NAME"), screen.atom("UTF8_STRING"), 8,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(title.data()),
                    static_cast<int>(title.size()));
    std::string name = "brolt-host";
    XClassHint hint{name.data(), name.data()};
    XSetClassHint(display, window, &hint);
}

void X11EditorWindow::setProtocols() {
    XSetWMProtocols(display, window, &deleteWindow, 1);
    XWMHints hints{};
    hints.flags = InputHint;
    hints.input = True;
    XSetWMHints(display, window, &hints);
}

/// A window with one possible size is one that the user cannot resize.
void X11EditorWindow::setSizeHints(ViewSize size) {
    if (isResizable)
        return;
    XSizeHints hints{};
    hints.flags = PMinSize | PMaxSize;
    hints.min_width = hints.max_width = size.width;
    hints.min_height = hints.max_height = size.height;
    XSetWMNormalHints(display, window, &hints);
}

void* X11EditorWindow::nativeHandle() const {
    // Handed over by value, as the interface has it.
    return reinterpret_cast<void*>(window); // NOLINT(performance-no-int-to-ptr)
}

Steinberg::FIDString X11EditorWindow::platformType() const {
    return Steinberg::kPlatformTypeX11EmbedWindowID;
}

void X11EditorWindow::show(IEditorWindowListener* whom) {
    listener = whom;
    if (listener == nullptr)
        return;
    XMapRaised(display, window);
    XFlush(display);
}

void X11EditorWindow::setContentSize(ViewSize size) {
    if (size == contentSize)
        return;
    contentSize = size;
    setSizeHints(size);
    XResizeWindow(display, window, extent(size.width), extent(size.height));
    XSync(display, False);
}

void X11EditorWindow::deliverEvents() {
    while (XPending(display) > 0) {
        XEvent event;
        XNextEvent(display, &event);
        embedding.handle(event);
        handle(event);
    }
}

void PLUGIN_API X11EditorWindow::onFDIsSet(int) {
    deliverEvents();
}

void X11EditorWindow::handle(const XEvent& event) {
    if (event.type == ClientMessage && event.xclient.message_type == protocols &&
        static_cast<Atom>(event.xclient.data.l[0]) == deleteWindow)
        closeIsRequested = true;
    if (event.type != ConfigureNotify || event.xconfigure.window != window)
        return;
    // While the user drags an edge there are many; the last one counts.
    XEvent last = event;
    while (XCheckTypedWindowEvent(display, window, ConfigureNotify, &last) != 0) {
    }
    takeUserSize({last.xconfigure.width, last.xconfigure.height});
}

void X11EditorWindow::takeUserSize(ViewSize size) {
    if (!isResizable || listener == nullptr || size == contentSize)
        return;
    contentSize = size;
    const ViewSize possible = listener->possibleSize(size);
    setContentSize(possible);
    listener->contentResized(possible);
}

#endif
