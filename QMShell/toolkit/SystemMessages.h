// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on Windows: the toolkit's hidden window belongs to the thread that made this object, and
// whoever pumps that thread's messages, the host that is, delivers ours among them.
#pragma once

#ifdef _WIN32

#    include "QMShell/toolkit/MessageLoop.h"

#    include <juce_events/juce_events.h>

class SystemMessages final : public MessageLoop {
public:
    /// Hosts make and destroy plug-ins on their window thread; both belong there. [message thread]
    SystemMessages() = default;

    void run(const std::function<void()>& task) override;

private:
    juce::ScopedJuceInitialiser_GUI toolkit;
};

#endif
