// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/WindowsEditorWindow.h"

#ifdef _WIN32

#    include "tools/brolt-host/HostError.h"
#    include "tools/brolt-host/Utf8.h"
#    include "tools/brolt-host/editor/WindowsScreen.h"

#    include <pluginterfaces/gui/iplugview.h>

namespace {

DWORD styleOf(bool isResizable) {
    constexpr DWORD fixed = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    return isResizable ? fixed | WS_THICKFRAME | WS_MAXIMIZEBOX : fixed;
}

} // namespace

WindowsEditorWindow::WindowsEditorWindow(const std::string& title, ViewSize size, bool isResizable)
    : style(styleOf(isResizable))
    , contentSize(size) {
    const ViewSize whole = wholeSize(size);
    const std::wstring name = pathFromUtf8(title).wstring();
    window = CreateWindowExW(0, WindowsScreen::windowClass, name.c_str(), style, CW_USEDEFAULT,
                             CW_USEDEFAULT, whole.width, whole.height, nullptr, nullptr,
                             GetModuleHandleW(nullptr), nullptr);
    if (window == nullptr)
        throw HostError("there is no screen to open a window on (error " +
                        std::to_string(GetLastError()) + ")");
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WindowsEditorWindow::~WindowsEditorWindow() {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    DestroyWindow(window);
}

/// With frame and title.
ViewSize WindowsEditorWindow::wholeSize(ViewSize content) const {
    RECT whole{0, 0, content.width, content.height};
    AdjustWindowRectEx(&whole, style, FALSE, 0);
    return {whole.right - whole.left, whole.bottom - whole.top};
}

Steinberg::FIDString WindowsEditorWindow::platformType() const {
    return Steinberg::kPlatformTypeHWND;
}

void WindowsEditorWindow::show(IEditorWindowListener* whom) {
    listener = whom;
    if (listener != nullptr)
        ShowWindow(window, SW_SHOW);
}

void WindowsEditorWindow::setContentSize(ViewSize size) {
    if (size == contentSize)
        return;
    contentSize = size;
    const ViewSize whole = wholeSize(size);
    SetWindowPos(window, nullptr, 0, 0, whole.width, whole.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool WindowsEditorWindow::handle(UINT message, WPARAM first, LPARAM second) {
    switch (message) {
    case WM_CLOSE:
        closeIsRequested = true;
        return true;
    case WM_SIZE:
        if (first != SIZE_MINIMIZED)
            takeUserSize({LOWORD(second), HIWORD(second)});
        return true;
    case WM_SIZING:
        constrain(first, *reinterpret_cast<RECT*>(second));
        return true;
    case WM_SETFOCUS:
        SetFocus(GetWindow(window, GW_CHILD));
        return true;
    default:
        return false;
    }
}

void WindowsEditorWindow::takeUserSize(ViewSize size) {
    if (listener == nullptr || size == contentSize)
        return;
    contentSize = size;
    // A dragged edge was constrained before; a maximised window was not.
    const ViewSize possible = listener->possibleSize(size);
    setContentSize(possible);
    listener->contentResized(possible);
}

/// The edge that the user does not hold stays where it is.
void WindowsEditorWindow::constrain(WPARAM edge, RECT& whole) const {
    if (listener == nullptr)
        return;
    const ViewSize frame = wholeSize({0, 0});
    const ViewSize possible = wholeSize(listener->possibleSize(
        {whole.right - whole.left - frame.width, whole.bottom - whole.top - frame.height}));
    if (edge == WMSZ_LEFT || edge == WMSZ_TOPLEFT || edge == WMSZ_BOTTOMLEFT)
        whole.left = whole.right - possible.width;
    else
        whole.right = whole.left + possible.width;
    if (edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT)
        whole.top = whole.bottom - possible.height;
    else
        whole.bottom = whole.top + possible.height;
}

#endif
