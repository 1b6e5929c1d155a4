// SPDX-License-Identifier: GPL-3.0-or-later
// The window on X11. Events are sent to the plug-in's window directly: the pointer stays where it
// is, so that several programs can do this on one screen at the same time.
#include "brolt/library/tests/support/EditorWindow.h"

#ifndef _WIN32

#    include "brolt/library/tests/support/X11Functions.h"

#    include <X11/keysym.h>

#    include <chrono>
#    include <cstdlib>
#    include <stdexcept>

namespace {

KeySym symbolOf(EditorKey key) {
    switch (key) {
    case EditorKey::enter:
        return XK_Return;
    case EditorKey::up:
        return XK_Up;
    default:
        return static_cast<KeySym>(key);
    }
}

EditorKey keyOf(KeySym symbol) {
    for (const EditorKey key : {EditorKey::enter, EditorKey::up}) {
        if (symbolOf(key) == symbol)
            return key;
    }
    return static_cast<EditorKey>(symbol);
}

unsigned int numberOf(EditorWindow::Button button) {
    return button == EditorWindow::Button::left ? Button1 : Button3;
}

unsigned int maskOf(EditorWindow::Button button) {
    return button == EditorWindow::Button::left ? Button1Mask : Button3Mask;
}

constexpr unsigned int wheelUpButton = Button4;

/// Milliseconds that go on as the server's do.
Time timeOfEvent() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<Time>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

} // namespace

class EditorWindow::Native {
public:
    explicit Native(EditorSize size)
        : display(x.openDisplay(nullptr)) {
        if (display == nullptr)
            throw std::runtime_error("the X server cannot be reached");
        window = x.createSimpleWindow(
            display, DefaultRootWindow(display), 0, 0, static_cast<unsigned int>(size.width),
            static_cast<unsigned int>(size.height), 0, 0, BlackPixel(display, 0));
        // The window manager leaves it alone: it would move it, and turn the keyboard to it, at a
        // moment that nobody knows, in the midst of a drag.
        XSetWindowAttributes attributes{};
        attributes.override_redirect = True;
        x.changeWindowAttributes(display, window, CWOverrideRedirect, &attributes);
        x.selectInput(display, window, KeyPressMask | KeyReleaseMask);
        x.mapRaised(display, window);
        // The plug-in uses it over a connection of its own.
        x.sync(display, False);
    }

    ~Native() {
        x.destroyWindow(display, window);
        x.sync(display, False);
        x.closeDisplay(display);
    }

    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    [[nodiscard]] std::vector<Window> childWindows() const {
        Window root = 0;
        Window parent = 0;
        Window* list = nullptr;
        unsigned int count = 0;
        if (x.queryTree(display, window, &root, &parent, &list, &count) == 0)
            return {};
        std::vector<Window> windows(list, list + count);
        if (list != nullptr)
            x.free(list);
        return windows;
    }

    [[nodiscard]] XWindowAttributes attributesOfChild() const {
        XWindowAttributes attributes{};
        if (const auto windows = childWindows(); !windows.empty())
            x.getWindowAttributes(display, windows.front(), &attributes);
        return attributes;
    }

    [[nodiscard]] Window focus() const {
        Window focused = 0;
        int revertsTo = 0;
        x.getInputFocus(display, &focused, &revertsTo);
        return focused;
    }

    void sendButton(int type, unsigned int button, unsigned int state, EditorPoint point) const {
        XEvent event{};
        event.xbutton.button = button;
        send(event.xbutton, event, type, state, point);
    }

    void sendMotion(unsigned int state, EditorPoint point) const {
        XEvent event{};
        send(event.xmotion, event, MotionNotify, state, point);
    }

    void sendKey(int type, EditorKey key) const {
        XEvent event{};
        event.xkey.keycode = x.keysymToKeycode(display, symbolOf(key));
        send(event.xkey, event, type, 0, {});
    }

    std::vector<HeardKey> takeKeys() {
        x.sync(display, False);
        while (x.pending(display) > 0) {
            XEvent event;
            x.nextEvent(display, &event);
            if (event.type == KeyPress || event.type == KeyRelease)
                heard.push_back({keyOf(x.lookupKeysym(&event.xkey, 0)), event.type == KeyPress});
        }
        return heard;
    }

    Window window = 0;

private:
    /// The members that events of the pointer and of keys have in common.
    template <typename Part>
    void send(Part& part, XEvent& event, int type, unsigned int state, EditorPoint point) const {
        const std::vector<Window> windows = childWindows();
        if (windows.empty())
            throw std::runtime_error("there is no window of the plug-in's");
        part.type = type;
        part.display = display;
        part.window = windows.front();
        part.root = DefaultRootWindow(display);
        part.time = timeOfEvent();
        part.x = part.x_root = point.x;
        part.y = part.y_root = point.y;
        part.state = state;
        part.same_screen = True;
        x.sendEvent(display, windows.front(), False, NoEventMask, &event);
        x.sync(display, False);
    }

    const X11Functions& x = *X11Functions::get();
    Display* display;
    std::vector<HeardKey> heard;
};

std::string EditorWindow::obstacle() {
    const char* const name = std::getenv("DISPLAY");
    if (name == nullptr || *name == '\0')
        return "there is no screen (DISPLAY is not set)";
    const X11Functions* const x = X11Functions::get();
    if (x == nullptr)
        return "there is no libX11";
    Display* const display = x->openDisplay(nullptr);
    if (display == nullptr)
        return std::string("the X server ") + name + " cannot be reached";
    x->closeDisplay(display);
    return {};
}

std::string EditorWindow::obstacleToInput() {
    const std::string reason = obstacle();
    const char* const own = std::getenv("BROLT_TEST_DISPLAY");
    if (!reason.empty() || (own != nullptr && std::string(own) == std::getenv("DISPLAY")))
        return reason;
    return "the screen may be somebody's (BROLT_TEST_DISPLAY is not set)";
}

EditorWindow::EditorWindow(EditorSize size) {
    if (const std::string reason = obstacle(); !reason.empty())
        throw std::runtime_error(reason);
    native = std::make_unique<Native>(size);
}

EditorWindow::~EditorWindow() = default;

void* EditorWindow::handle() const {
    return reinterpret_cast<void*>(native->window); // NOLINT(performance-no-int-to-ptr)
}

Steinberg::FIDString EditorWindow::platformType() {
    return Steinberg::kPlatformTypeX11EmbedWindowID;
}

std::size_t EditorWindow::children() const {
    return native->childWindows().size();
}

bool EditorWindow::showsChild() const {
    return native->attributesOfChild().map_state == IsViewable;
}

EditorSize EditorWindow::childSize() const {
    const XWindowAttributes attributes = native->attributesOfChild();
    return {attributes.width, attributes.height};
}

bool EditorWindow::childHasKeyboard() const {
    const std::vector<Window> windows = native->childWindows();
    return !windows.empty() && native->focus() == windows.front();
}

void EditorWindow::press(EditorPoint point, Button button) {
    native->sendButton(ButtonPress, numberOf(button), 0, point);
}

void EditorWindow::drag(EditorPoint point, Button button) {
    native->sendMotion(maskOf(button), point);
}

void EditorWindow::release(EditorPoint point, Button button) {
    native->sendButton(ButtonRelease, numberOf(button), maskOf(button), point);
}

void EditorWindow::wheelUp(EditorPoint point) {
    native->sendButton(ButtonPress, wheelUpButton, 0, point);
    native->sendButton(ButtonRelease, wheelUpButton, 0, point);
}

void EditorWindow::keyDown(EditorKey key) {
    native->sendKey(KeyPress, key);
}

void EditorWindow::keyUp(EditorKey key) {
    native->sendKey(KeyRelease, key);
}

std::vector<EditorWindow::HeardKey> EditorWindow::heardKeys() {
    return native->takeKeys();
}

#endif
