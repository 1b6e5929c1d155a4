// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a plug-in's window is told by the window that it is in.

#ifndef _WIN32

#    include "tools/brolt-host/HostError.h"
#    include "tools/brolt-host/editor/X11EditorWindow.h"

#    include <gtest/gtest.h>

#    include <chrono>
#    include <cstdint>

namespace {

/// A plug-in's toolkit: a connection of its own, and a window in the host's.
class EmbeddedWindow {
public:
    explicit EmbeddedWindow(const EditorWindow& parent)
        : display(XOpenDisplay(nullptr))
        , parentWindow(static_cast<Window>(reinterpret_cast<std::uintptr_t>(parent.nativeHandle())))
        , window(XCreateSimpleWindow(display, parentWindow, 0, 0, 100, 100, 0, 0, 0)) {
        XSync(display, False);
    }

    ~EmbeddedWindow() { XCloseDisplay(display); }

    EmbeddedWindow(const EmbeddedWindow&) = delete;
    EmbeddedWindow& operator=(const EmbeddedWindow&) = delete;

    /// The next message of the protocol; false when there is none yet.
    bool receive(XClientMessageEvent& message) const {
        XEvent event;
        while (XCheckTypedWindowEvent(display, window, ClientMessage, &event) != 0) {
            message = event.xclient;
            if (message.message_type == XInternAtom(display, "_XEMBED", False))
                return true;
        }
        return false;
    }

    /// Puts a key into the parent's hands, as the server does when the pointer is elsewhere.
    void typeIntoParent(unsigned int keyCode) const {
        XEvent event{};
        event.xkey.type = KeyPress;
        event.xkey.window = parentWindow;
        event.xkey.keycode = keyCode;
        XSendEvent(display, parentWindow, False, KeyPressMask, &event);
        XSync(display, False);
    }

    [[nodiscard]] unsigned int receivedKey() const {
        XEvent event;
        return XCheckTypedWindowEvent(display, window, KeyPress, &event) != 0 ? event.xkey.keycode
                                                                              : 0;
    }

    Display* display;
    Window parentWindow;
    Window window;
};

class XEmbeddingTest : public testing::Test {
protected:
    void SetUp() override {
        try {
            screen = std::make_unique<X11Screen>();
        } catch (const HostError& error) {
            GTEST_SKIP() << error.what();
        }
        window = screen->openWindow(messages, "Host", {300, 200}, false);
        plugIn = std::make_unique<EmbeddedWindow>(*window);
    }

    void TearDown() override {
        plugIn.reset();
        window.reset();
        screen.reset();
    }

    /// Lets the host work until it is so, or for longer than anything here takes.
    template <typename Condition>
    bool waitFor(Condition condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (std::chrono::steady_clock::now() < end) {
            if (condition())
                return true;
            window->deliverEvents();
            messages.waitAndDeliver(std::chrono::milliseconds(5));
        }
        return false;
    }

    HostMessages messages;
    std::unique_ptr<X11Screen> screen;
    std::unique_ptr<EditorWindow> window;
    std::unique_ptr<EmbeddedWindow> plugIn;
};

} // namespace

TEST_F(XEmbeddingTest, aWindowInTheHostsIsToldThatItIsEmbedded) {
    XClientMessageEvent message{};
    ASSERT_TRUE(waitFor([&] { return plugIn->receive(message); }));
    EXPECT_EQ(message.format, 32);
    // The message's number, the embedder and the protocol's version.
    EXPECT_EQ(message.data.l[1], 0);
    EXPECT_EQ(static_cast<Window>(message.data.l[3]), plugIn->parentWindow);
    EXPECT_EQ(message.data.l[4], 0);
}

TEST_F(XEmbeddingTest, keysThatTheHostGetsAreHandedOn) {
    XClientMessageEvent message{};
    ASSERT_TRUE(waitFor([&] { return plugIn->receive(message); }));
    plugIn->typeIntoParent(38);
    unsigned int key = 0;
    EXPECT_TRUE(waitFor([&] { return (key = plugIn->receivedKey()) != 0; }));
    EXPECT_EQ(key, 38U);
}

TEST_F(XEmbeddingTest, theLatestWindowIsTheOneThatIsSpokenTo) {
    XClientMessageEvent message{};
    ASSERT_TRUE(waitFor([&] { return plugIn->receive(message); }));
    const EmbeddedWindow other(*window);
    ASSERT_TRUE(waitFor([&] { return other.receive(message); }));
    plugIn->typeIntoParent(40);
    unsigned int key = 0;
    EXPECT_TRUE(waitFor([&] { return (key = other.receivedKey()) != 0; }));
    EXPECT_EQ(plugIn->receivedKey(), 0U);
}

#endif
