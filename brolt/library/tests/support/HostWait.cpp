// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/HostWait.h"

#include <thread>

#ifdef _WIN32
#    include <windows.h>
#endif

void handOutMessages() {
#ifdef _WIN32
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
#endif
}

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    for (;;) {
        handOutMessages();
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void letPass(std::chrono::milliseconds time) {
    (void)waitUntil([] { return false; }, time);
}
