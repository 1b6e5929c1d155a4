// SPDX-License-Identifier: GPL-3.0-or-later
// Keys for the host's window on Windows: posted as the messages that the keyboard itself makes.
#include "QMShell/toolkit/KeySender.h"

#ifdef _WIN32

#    include <windows.h>

namespace {

/// The toolkit's codes are the system's, but for what it adds to those of keys without a character.
constexpr int systemCode = 0xFF;

constexpr LPARAM isUp = (LPARAM{1} << 31) | (LPARAM{1} << 30);

} // namespace

class KeySender::Connection {};

KeySender::KeySender(void* receivingWindow)
    : window(receivingWindow) {}

KeySender::~KeySender() = default;

bool KeySender::send(const juce::KeyPress& key, bool isDown) {
    const auto code = static_cast<WPARAM>(key.getKeyCode() & systemCode);
    const LPARAM scanCode =
        static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC)) << 16;
    constexpr LPARAM once = 1;
    return PostMessageW(static_cast<HWND>(window), isDown ? WM_KEYDOWN : WM_KEYUP, code,
                        isDown ? once | scanCode : once | scanCode | isUp) != 0;
}

#endif
