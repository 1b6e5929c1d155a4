// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/KeysForHost.h"

#include "QMShell/toolkit/KeySender.h"

#include <algorithm>

KeysForHost::KeysForHost() = default;
KeysForHost::~KeysForHost() = default;

void KeysForHost::setWindow(void* hostWindow) {
    down.clear();
    sender = hostWindow == nullptr ? nullptr : std::make_unique<KeySender>(hostWindow);
}

bool KeysForHost::press(const juce::KeyPress& key) {
    if (!sender || !sender->send(key, true))
        return false;
    if (std::find(down.begin(), down.end(), key) == down.end())
        down.push_back(key);
    return true;
}

bool KeysForHost::release() {
    if (!sender)
        return false;
    return std::erase_if(down, [this](const juce::KeyPress& key) {
               return !key.isCurrentlyDown() && sender->send(key, false);
           }) > 0;
}
