// SPDX-License-Identifier: GPL-3.0-or-later
// Keys for another program's window on X11. On a connection of its own: the toolkit's is not to be
// had. The library is opened when it is needed, as the toolkit does, since a host without windows
// may not have it.
#include "QMShell/toolkit/KeySender.h"

#ifndef _WIN32

#    include <X11/Xlib.h>
#    include <X11/keysym.h>
#    include <dlfcn.h>

#    include <cstdint>

namespace {

constexpr int keyIsDown = KeyPress;
constexpr int keyIsUp = KeyRelease;
// A macro of Xlib's, and a class of the toolkit's.
#    undef KeyPress

/// The toolkit's codes of keys that are no characters: the symbol's last byte and this.
constexpr int specialKey = 0x10000000;
constexpr int specialKeySymbols = 0xFF00;

KeySym symbolOf(const juce::KeyPress& key) {
    const int code = key.getKeyCode();
    if ((code & specialKey) != 0)
        return static_cast<KeySym>(specialKeySymbols | (code & 0xFF));
    if (code == juce::KeyPress::returnKey || code == juce::KeyPress::escapeKey ||
        code == juce::KeyPress::tabKey || code == juce::KeyPress::backspaceKey)
        return static_cast<KeySym>(specialKeySymbols | code);
    return static_cast<KeySym>(code);
}

unsigned int stateOf(const juce::ModifierKeys& modifiers) {
    return (modifiers.isShiftDown() ? unsigned{ShiftMask} : 0u) |
           (modifiers.isCtrlDown() ? unsigned{ControlMask} : 0u) |
           (modifiers.isAltDown() ? unsigned{Mod1Mask} : 0u);
}

} // namespace

class KeySender::Connection {
public:
    Connection()
        : library(dlopen("libX11.so.6", RTLD_LAZY | RTLD_LOCAL)) {
        if (library == nullptr)
            return;
        find(openDisplay, "XOpenDisplay");
        find(closeDisplay, "XCloseDisplay");
        find(sendEvent, "XSendEvent");
        find(sync, "XSync");
        find(keycode, "XKeysymToKeycode");
        if (openDisplay != nullptr && closeDisplay != nullptr && sendEvent != nullptr &&
            sync != nullptr && keycode != nullptr)
            display = openDisplay(nullptr);
    }

    ~Connection() {
        if (display != nullptr)
            closeDisplay(display);
        if (library != nullptr)
            dlclose(library);
    }

    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool send(Window window, const juce::KeyPress& key, bool isDown) {
        if (display == nullptr)
            return false;
        const KeyCode code = keycode(display, symbolOf(key));
        if (code == 0)
            return false;
        XEvent event{};
        event.xkey.type = isDown ? keyIsDown : keyIsUp;
        event.xkey.display = display;
        event.xkey.window = window;
        event.xkey.root = DefaultRootWindow(display);
        event.xkey.time = CurrentTime;
        event.xkey.state = stateOf(key.getModifiers());
        event.xkey.keycode = code;
        event.xkey.same_screen = True;
        constexpr Bool toAncestorsToo = True;
        const long mask = isDown ? KeyPressMask : KeyReleaseMask;
        const bool isSent = sendEvent(display, window, toAncestorsToo, mask, &event) != 0;
        sync(display, False);
        return isSent;
    }

private:
    template <typename Function>
    void find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(dlsym(library, name));
    }

    void* library;
    Display* display = nullptr;
    decltype(&XOpenDisplay) openDisplay = nullptr;
    decltype(&XCloseDisplay) closeDisplay = nullptr;
    decltype(&XSendEvent) sendEvent = nullptr;
    decltype(&XSync) sync = nullptr;
    decltype(&XKeysymToKeycode) keycode = nullptr;
};

KeySender::KeySender(void* receivingWindow)
    : window(receivingWindow) {}

KeySender::~KeySender() = default;

bool KeySender::send(const juce::KeyPress& key, bool isDown) {
    if (!connection)
        connection = std::make_unique<Connection>();
    return connection->send(static_cast<Window>(reinterpret_cast<std::uintptr_t>(window)), key,
                            isDown);
}

#endif
