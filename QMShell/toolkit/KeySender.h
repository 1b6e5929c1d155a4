// SPDX-License-Identifier: GPL-3.0-or-later
// Sends keys to a window of another toolkit's, in the window system's own way. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>

class KeySender {
public:
    /// The window system's handle of the window.
    explicit KeySender(void* receivingWindow);
    ~KeySender();
    KeySender(const KeySender&) = delete;
    KeySender& operator=(const KeySender&) = delete;

    /// False for a key that the window system does not have, and where it cannot be reached.
    bool send(const juce::KeyPress& key, bool isDown);

private:
    class Connection;

    void* const window;
    std::unique_ptr<Connection> connection; ///< made for the first key
};
