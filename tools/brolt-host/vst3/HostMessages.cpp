// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/HostMessages.h"

#ifdef _WIN32

#    include <windows.h>

void HostMessages::deliverPending() {
    constexpr int enough = 100; // a plug-in that answers a message with a message must not stop us
    MSG message;
    for (int i = 0; i < enough && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0; ++i) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void HostMessages::waitAndDeliver(std::chrono::milliseconds longest) {
    // With "input available" a message that was seen but not taken ends the wait as well.
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(longest.count()), QS_ALLINPUT,
                                MWMO_INPUTAVAILABLE);
    deliverPending();
}

#else

void HostMessages::deliverPending() {
    loop.deliverPending();
}

void HostMessages::waitAndDeliver(std::chrono::milliseconds longest) {
    loop.waitAndDeliver(longest);
}

#endif
