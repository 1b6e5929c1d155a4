// SPDX-License-Identifier: GPL-3.0-or-later
// Calls back when anything in the shell store has changed, some time after. [message thread]
#pragma once

#include <juce_events/juce_events.h>

#include <functional>

class ShellStoreListener final : private juce::ChangeListener {
public:
    explicit ShellStoreListener(std::function<void()> whatThen);
    /// Nothing is called any more.
    ~ShellStoreListener() override;

    ShellStoreListener(const ShellStoreListener&) = delete;
    ShellStoreListener& operator=(const ShellStoreListener&) = delete;

private:
    void changeListenerCallback(juce::ChangeBroadcaster*) override { changed(); }

    const std::function<void()> changed;
};
