// SPDX-License-Identifier: GPL-3.0-or-later
// Tells a process-wide preference store that the toolkit shuts down: the toolkit deletes this
// object then, before its timers and its message loop end.
#pragma once

#include <juce_events/juce_events.h>

namespace QM {

class ProcessWideStore;

class CleanupAppProps final : private juce::DeletedAtShutdown {
public:
    /// Registers with the toolkit, which owns it from now on; the store may delete it earlier.
    /// [message thread]
    explicit CleanupAppProps(ProcessWideStore& storeToTell);

    /// [message thread]
    ~CleanupAppProps() override;

private:
    ProcessWideStore& store;
};

} // namespace QM
