// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/WindowSystemErrors.h"

#ifndef _WIN32

#    include <juce_events/juce_events.h>
#    include <juce_events/native/juce_linux_EventLoopInternal.h>

#    include <X11/Xlib.h>
#    include <dlfcn.h>

#    include <algorithm>
#    include <atomic>
#    include <cstddef>
#    include <mutex>
#    include <utility>
#    include <vector>

namespace {

using SetHandler = XErrorHandler (*)(XErrorHandler);

struct Shared {
    std::mutex lock;
    int guards = 0;
    void* x11 = nullptr; ///< kept while our handler is in place
    SetHandler setHandler = nullptr;
    std::atomic<XErrorHandler> previous{nullptr};
};

Shared& shared() {
    static Shared one;
    return one;
}

bool isOurConnection(Display* display) {
    const std::vector<int> ours = juce::LinuxEventLoopInternal::getRegisteredFds();
    return std::find(ours.begin(), ours.end(), ConnectionNumber(display)) != ours.end();
}

int onError(Display* display, XErrorEvent* error) {
    const XErrorHandler previous = shared().previous;
    if (isOurConnection(display) || previous == nullptr)
        return 0;
    return previous(display, error);
}

/// Nothing as long as the toolkit has no connection: its own messages alone come over one
/// descriptor. The library is there then, since the toolkit has loaded it; looking for one that is
/// not would take longer than most messages do.
void install(Shared& handlers) {
    constexpr std::size_t messagesAlone = 1;
    if (juce::LinuxEventLoopInternal::getRegisteredFds().size() <= messagesAlone)
        return;
    handlers.x11 = dlopen("libX11.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (handlers.x11 == nullptr)
        return;
    handlers.setHandler = reinterpret_cast<SetHandler>(dlsym(handlers.x11, "XSetErrorHandler"));
    handlers.previous = handlers.setHandler(onError);
}

void uninstall(Shared& handlers) {
    if (handlers.x11 == nullptr)
        return;
    const XErrorHandler current = handlers.setHandler(handlers.previous);
    // Somebody has put one in the place of ours meanwhile: that one stays.
    if (current != onError)
        handlers.setHandler(current);
    handlers.previous = nullptr;
    dlclose(std::exchange(handlers.x11, nullptr));
}

} // namespace

WindowSystemErrors::WindowSystemErrors() {
    const std::scoped_lock lock(shared().lock);
    if (++shared().guards == 1)
        install(shared());
}

WindowSystemErrors::~WindowSystemErrors() {
    const std::scoped_lock lock(shared().lock);
    if (--shared().guards == 0)
        uninstall(shared());
}

#endif
