// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/WindowsScreen.h"

#ifdef _WIN32

#    include "tools/brolt-host/editor/WindowsEditorWindow.h"

#    include <windows.h>

#    include <ole2.h>

namespace {

LRESULT CALLBACK handleMessage(HWND handle, UINT message, WPARAM first, LPARAM second) {
    auto* const window =
        reinterpret_cast<WindowsEditorWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (window != nullptr && window->handle(message, first, second))
        return 0;
    return DefWindowProcW(handle, message, first, second);
}

} // namespace

WindowsScreen::WindowsScreen() {
    // Drag and drop into an editor, and file dialogues, need it on the window's thread.
    OleInitialize(nullptr);
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = handleMessage;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    description.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    description.lpszClassName = windowClass;
    RegisterClassExW(&description);
}

WindowsScreen::~WindowsScreen() {
    UnregisterClassW(windowClass, GetModuleHandleW(nullptr));
    OleUninitialize();
}

std::unique_ptr<EditorWindow> WindowsScreen::openWindow(HostMessages&, const std::string& title,
                                                        ViewSize size, bool isResizable) {
    return std::make_unique<WindowsEditorWindow>(title, size, isResizable);
}

std::unique_ptr<EditorScreen> openEditorScreen() {
    return std::make_unique<WindowsScreen>();
}

#endif
