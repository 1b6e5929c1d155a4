// SPDX-License-Identifier: GPL-3.0-or-later
// Brings keys that an editor has no use for to the host: the space bar starts its transport, though
// the editor's window has the keyboard. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>
#include <vector>

class KeySender;

class KeysForHost {
public:
    KeysForHost();
    ~KeysForHost();
    KeysForHost(const KeysForHost&) = delete;
    KeysForHost& operator=(const KeysForHost&) = delete;

    /// The host's window around the editor; null for none.
    void setWindow(void* hostWindow);

    /// Sends a key on. False without a window.
    bool press(const juce::KeyPress& key);
    /// Sends on that keys are up again which were sent on before. False when there was none.
    bool release();

private:
    std::unique_ptr<KeySender> sender;
    std::vector<juce::KeyPress> down;
};
