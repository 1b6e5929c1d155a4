// SPDX-License-Identifier: GPL-3.0-or-later
//
// The user of a window on an X server.

#ifndef _WIN32

#    include "tools/brolt-host/editor/X11Headers.h"
#    include "tools/brolt-host/tests/editor/WindowUser.h"

#    include <cstdint>

namespace {

class X11WindowUser : public WindowUser {
public:
    explicit X11WindowUser(const EditorWindow& whose)
        : display(XOpenDisplay(nullptr))
        , window(static_cast<Window>(reinterpret_cast<std::uintptr_t>(whose.nativeHandle()))) {}

    ~X11WindowUser() override { XCloseDisplay(display); }

    X11WindowUser(const X11WindowUser&) = delete;
    X11WindowUser& operator=(const X11WindowUser&) = delete;

    [[nodiscard]] std::string title() const override {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* text = nullptr;
        XGetWindowProperty(display, window, atom("_NET_WM_NAME"), 0, 1000, False,
                           atom("UTF8_STRING"), &type, &format, &count, &left, &text);
        const std::string result(reinterpret_cast<const char*>(text), count);
        XFree(text);
        return result;
    }

    [[nodiscard]] ViewSize contentSize() const override {
        return {attributes().width, attributes().height};
    }

    [[nodiscard]] bool seesWindow() const override { return attributes().map_state == IsViewable; }

    [[nodiscard]] bool mayResize() const override {
        XSizeHints hints{};
        long supplied = 0;
        XGetWMNormalHints(display, window, &hints, &supplied);
        const bool isLimited = (hints.flags & PMinSize) != 0 && (hints.flags & PMaxSize) != 0;
        return !isLimited || hints.min_width != hints.max_width ||
               hints.min_height != hints.max_height;
    }

    void drag(ViewSize size) override {
        XResizeWindow(display, window, static_cast<unsigned>(size.width),
                      static_cast<unsigned>(size.height));
        XSync(display, False);
    }

    void clickClose() override {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = atom("WM_PROTOCOLS");
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(atom("WM_DELETE_WINDOW"));
        XSendEvent(display, window, False, NoEventMask, &event);
        XSync(display, False);
    }

private:
    [[nodiscard]] Atom atom(const char* name) const { return XInternAtom(display, name, False); }

    [[nodiscard]] XWindowAttributes attributes() const {
        XWindowAttributes found{};
        XGetWindowAttributes(display, window, &found);
        return found;
    }

    Display* display;
    Window window;
};

} // namespace

std::unique_ptr<WindowUser> makeWindowUser(const EditorWindow& window) {
    return std::make_unique<X11WindowUser>(window);
}

#endif
