// SPDX-License-Identifier: GPL-3.0-or-later
// The window on Windows. Events are posted to the plug-in's window as the system posts them.
#include "brolt/library/tests/support/EditorWindow.h"

#ifdef _WIN32

#    include <windows.h>

#    include <stdexcept>

namespace {

constexpr const wchar_t* className = L"BroltTestEditorWindow";

/// The window procedure of a host: keys are noted, everything else is the system's.
LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
    auto* const heard = reinterpret_cast<std::vector<EditorWindow::HeardKey>*>(
        GetWindowLongPtrW(window, GWLP_USERDATA));
    if (heard != nullptr && (message == WM_KEYDOWN || message == WM_KEYUP))
        heard->push_back({static_cast<EditorKey>(first), message == WM_KEYDOWN});
    return DefWindowProcW(window, message, first, second);
}

void registerClass() {
    static const ATOM registered = [] {
        WNDCLASSW description{};
        description.lpfnWndProc = handleMessage;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = className;
        return RegisterClassW(&description);
    }();
    if (registered == 0)
        throw std::runtime_error("the window's class was not registered");
}

LPARAM placeOf(EditorPoint point) {
    return MAKELPARAM(point.x, point.y);
}

bool isLeft(EditorWindow::Button button) {
    return button == EditorWindow::Button::left;
}

} // namespace

class EditorWindow::Native {
public:
    explicit Native(EditorSize size) {
        registerClass();
        RECT frame{0, 0, size.width, size.height};
        AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
        window = CreateWindowExW(0, className, L"Test host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                                 0, 0, frame.right - frame.left, frame.bottom - frame.top, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
        if (window == nullptr)
            throw std::runtime_error("the window was not made");
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&heard));
        ShowWindow(window, SW_SHOWNORMAL);
    }

    ~Native() { DestroyWindow(window); }

    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    [[nodiscard]] HWND child() const { return GetWindow(window, GW_CHILD); }

    void post(UINT message, WPARAM first, LPARAM second) const {
        if (child() == nullptr)
            throw std::runtime_error("there is no window of the plug-in's");
        PostMessageW(child(), message, first, second);
    }

    HWND window = nullptr;
    std::vector<HeardKey> heard;
};

std::string EditorWindow::obstacle() {
    return {};
}

std::string EditorWindow::obstacleToInput() {
    return {};
}

EditorWindow::EditorWindow(EditorSize size)
    : native(std::make_unique<Native>(size)) {}

EditorWindow::~EditorWindow() = default;

void* EditorWindow::handle() const {
    return native->window;
}

Steinberg::FIDString EditorWindow::platformType() {
    return Steinberg::kPlatformTypeHWND;
}

std::size_t EditorWindow::children() const {
    std::size_t count = 0;
    for (HWND each = native->child(); each != nullptr; each = GetWindow(each, GW_HWNDNEXT))
        ++count;
    return count;
}

bool EditorWindow::showsChild() const {
    return native->child() != nullptr && IsWindowVisible(native->child()) != FALSE;
}

EditorSize EditorWindow::childSize() const {
    RECT area{};
    GetClientRect(native->child(), &area);
    return {area.right, area.bottom};
}

bool EditorWindow::childHasKeyboard() const {
    return native->child() != nullptr && GetFocus() == native->child();
}

void EditorWindow::press(EditorPoint point, Button button) {
    native->post(isLeft(button) ? WM_LBUTTONDOWN : WM_RBUTTONDOWN,
                 isLeft(button) ? MK_LBUTTON : MK_RBUTTON, placeOf(point));
}

void EditorWindow::drag(EditorPoint point, Button button) {
    native->post(WM_MOUSEMOVE, isLeft(button) ? MK_LBUTTON : MK_RBUTTON, placeOf(point));
}

void EditorWindow::release(EditorPoint point, Button button) {
    native->post(isLeft(button) ? WM_LBUTTONUP : WM_RBUTTONUP, 0, placeOf(point));
}

void EditorWindow::wheelUp(EditorPoint point) {
    // The one message that goes where the pointer is, by coordinates of the screen.
    POINT place{point.x, point.y};
    ClientToScreen(native->child(), &place);
    SetCursorPos(place.x, place.y);
    native->post(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(place.x, place.y));
}

void EditorWindow::keyDown(EditorKey key) {
    native->post(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
}

void EditorWindow::keyUp(EditorKey key) {
    constexpr LPARAM isUp = (LPARAM{1} << 31) | (LPARAM{1} << 30);
    native->post(WM_KEYUP, static_cast<WPARAM>(key), 1 | isUp);
}

std::vector<EditorWindow::HeardKey> EditorWindow::heardKeys() {
    return native->heard;
}

#endif
