// SPDX-License-Identifier: GPL-3.0-or-later
//
// The user of a window on Windows.

#ifdef _WIN32

#    include "tools/brolt-host/Utf8.h"
#    include "tools/brolt-host/tests/editor/WindowUser.h"

#    include <array>

#    include <windows.h>

namespace {

class WindowsWindowUser : public WindowUser {
public:
    explicit WindowsWindowUser(const EditorWindow& whose)
        : window(static_cast<HWND>(whose.nativeHandle())) {}

    [[nodiscard]] std::string title() const override {
        std::array<wchar_t, 100> text{};
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
        return utf8FromPath(std::filesystem::path(text.data()));
    }

    [[nodiscard]] ViewSize contentSize() const override {
        RECT client{};
        GetClientRect(window, &client);
        return {client.right, client.bottom};
    }

    [[nodiscard]] bool seesWindow() const override { return IsWindowVisible(window) != 0; }

    [[nodiscard]] bool mayResize() const override {
        return (GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) != 0;
    }

    void drag(ViewSize size) override {
        RECT whole{};
        GetWindowRect(window, &whole);
        const ViewSize now = contentSize();
        whole.right += size.width - now.width;
        whole.bottom += size.height - now.height;
        SendMessageW(window, WM_SIZING, WMSZ_BOTTOMRIGHT, reinterpret_cast<LPARAM>(&whole));
        SetWindowPos(window, nullptr, 0, 0, whole.right - whole.left, whole.bottom - whole.top,
                     SWP_NOMOVE | SWP_NOZORDER);
    }

    void clickClose() override { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }

private:
    HWND window;
};

} // namespace

std::unique_ptr<WindowUser> makeWindowUser(const EditorWindow& window) {
    return std::make_unique<WindowsWindowUser>(window);
}

#endif
