// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/X11Functions.h"

#ifndef _WIN32

#    include <dlfcn.h>

#    include <optional>

namespace {

std::optional<X11Functions> load() {
    void* const library = dlopen("libX11.so.6", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr)
        return {};
    bool foundAll = true;
    const auto find = [&](auto& function, const char* name) {
        function =
            reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
        foundAll = foundAll && function != nullptr;
    };
    X11Functions x;
    find(x.openDisplay, "XOpenDisplay");
    find(x.closeDisplay, "XCloseDisplay");
    find(x.createSimpleWindow, "XCreateSimpleWindow");
    find(x.changeWindowAttributes, "XChangeWindowAttributes");
    find(x.destroyWindow, "XDestroyWindow");
    find(x.mapRaised, "XMapRaised");
    find(x.selectInput, "XSelectInput");
    find(x.queryTree, "XQueryTree");
    find(x.getWindowAttributes, "XGetWindowAttributes");
    find(x.getInputFocus, "XGetInputFocus");
    find(x.sendEvent, "XSendEvent");
    find(x.keysymToKeycode, "XKeysymToKeycode");
    find(x.lookupKeysym, "XLookupKeysym");
    find(x.pending, "XPending");
    find(x.nextEvent, "XNextEvent");
    find(x.sync, "XSync");
    find(x.free, "XFree");
    return foundAll ? std::optional(x) : std::nullopt;
}

} // namespace

const X11Functions* X11Functions::get() {
    static const std::optional<X11Functions> functions = load();
    return functions ? &*functions : nullptr;
}

#endif
