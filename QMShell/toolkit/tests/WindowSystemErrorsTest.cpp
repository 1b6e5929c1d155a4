// SPDX-License-Identifier: GPL-3.0-or-later
// Errors of X11 connections in a host's process: which are dropped, and which go to the host's own
// handler. Wants a screen.

#ifndef _WIN32

#    include "QMShell/toolkit/WindowSystemErrors.h"

#    include <gtest/gtest.h>
#    include <juce_events/juce_events.h>

#    include <X11/Xlib.h>
#    include <dlfcn.h>

namespace {

int errorsOfHost = 0;

int countError(Display*, XErrorEvent*) {
    ++errorsOfHost;
    return 0;
}

/// The X11 library, loaded as a host has it.
class WindowSystem {
public:
    WindowSystem()
        : library(dlopen("libX11.so.6", RTLD_LAZY)) {
        find(openDisplay, "XOpenDisplay");
        find(closeDisplay, "XCloseDisplay");
        find(sync, "XSync");
        find(mapWindow, "XMapWindow");
        find(setErrorHandler, "XSetErrorHandler");
    }

    ~WindowSystem() {
        if (library != nullptr)
            dlclose(library);
    }

    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;

    /// Asks for something of a window that is not there, and waits for the answer.
    void makeError(Display* display) const {
        constexpr Window nobodys = 0x1;
        mapWindow(display, nobodys);
        sync(display, False);
    }

private:
    template <typename Function>
    void find(Function& function, const char* name) {
        if (library != nullptr)
            function = reinterpret_cast<Function>(dlsym(library, name));
    }

    void* library;

public:
    decltype(&XOpenDisplay) openDisplay = nullptr;
    decltype(&XCloseDisplay) closeDisplay = nullptr;
    decltype(&XSync) sync = nullptr;
    decltype(&XMapWindow) mapWindow = nullptr;
    decltype(&XSetErrorHandler) setErrorHandler = nullptr;
};

} // namespace

TEST(WindowSystemErrors, OfOurConnectionAreDroppedAndOthersAreTheHosts) {
    const WindowSystem windowSystem;
    Display* const hosts =
        windowSystem.openDisplay == nullptr ? nullptr : windowSystem.openDisplay(nullptr);
    if (hosts == nullptr)
        GTEST_SKIP() << "there is no screen";
    const juce::ScopedJuceInitialiser_GUI toolkit;
    Display* const ours = windowSystem.openDisplay(nullptr);
    juce::LinuxEventLoop::registerFdCallback(ConnectionNumber(ours), [](int) {});
    const XErrorHandler before = windowSystem.setErrorHandler(countError);
    errorsOfHost = 0;
    {
        const WindowSystemErrors outer;
        {
            const WindowSystemErrors inner;
            windowSystem.makeError(ours);
        }
        windowSystem.makeError(ours);
        EXPECT_EQ(errorsOfHost, 0);
        windowSystem.makeError(hosts);
        EXPECT_EQ(errorsOfHost, 1);
    }
    windowSystem.makeError(ours);
    EXPECT_EQ(errorsOfHost, 2) << "without a guard everything is the host's again";
    EXPECT_EQ(windowSystem.setErrorHandler(before), countError);
    juce::LinuxEventLoop::unregisterFdCallback(ConnectionNumber(ours));
    windowSystem.closeDisplay(ours);
    windowSystem.closeDisplay(hosts);
}

TEST(WindowSystemErrors, AHandlerThatSomebodyPutsInMeanwhileStays) {
    const WindowSystem windowSystem;
    if (windowSystem.setErrorHandler == nullptr)
        GTEST_SKIP() << "there is no X11 library";
    const juce::ScopedJuceInitialiser_GUI toolkit;
    // Stands for the connection; nothing is ever read from it.
    constexpr int someDescriptor = 2;
    juce::LinuxEventLoop::registerFdCallback(someDescriptor, [](int) {});
    const XErrorHandler before = windowSystem.setErrorHandler(nullptr);
    {
        const WindowSystemErrors guard;
        EXPECT_NE(windowSystem.setErrorHandler(countError), before) << "ours was in place";
    }
    EXPECT_EQ(windowSystem.setErrorHandler(before), countError);
    juce::LinuxEventLoop::unregisterFdCallback(someDescriptor);
}

#endif
