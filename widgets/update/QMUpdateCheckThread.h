// SPDX-License-Identifier: GPL-3.0-or-later
// Asks the maker's service whether there is a newer version, once. Whatever the network and the
// reply do, all that comes of it is a reply or none.
#pragma once

#include "services/update/UpdateReply.h"
#include "widgets/update/UpdateFetch.h"

#include <juce_core/juce_core.h>

#include <functional>
#include <optional>
#include <stop_token>

class QMUpdateCheckThread final : public juce::Thread {
public:
    /// Calls onReply on this thread when a reply has come. To be started by the owner.
    /// [message thread]
    QMUpdateCheckThread(UpdateFetch howToFetch, QM::UpdateParameters whatToAsk,
                        std::function<void()> onReply);
    /// Waits for the thread to end. [message thread]
    ~QMUpdateCheckThread() override;

    /// Does not wait. [message thread]
    void askToStop();

    /// Waits at most so many milliseconds, -1 for as long as it takes; true when the thread has
    /// ended. It is never killed. [message thread]
    bool waitForEnd(int longestMs) const { return waitForThreadToExit(longestMs); }

    /// To be asked when onReply has been called, or the thread has ended. [message thread]
    [[nodiscard]] const std::optional<QM::UpdateReply>& getReply() const { return reply; }

    void run() override;

private:
    [[nodiscard]] std::optional<QM::UpdateReply> ask() const;

    const UpdateFetch fetch;
    const QM::UpdateParameters parameters;
    const std::function<void()> tellOwner;
    std::stop_source stop;
    std::optional<QM::UpdateReply> reply;
};
