// SPDX-License-Identifier: GPL-3.0-or-later
// The questions for newer versions that this process has asked, and their answers. A host opens
// editors again and again and in several instances at once: each product is asked for once in the
// life of the process, whatever comes of it, and the answer is kept for the editors that come
// later. A question that failed, or was stopped since the editors that waited for it went, is not
// asked again: where there is no network, no editor but the first has anything to do with it.
//
// Threads that are still in the system's network code when their editor has gone stay here until
// they end, at the latest when the toolkit goes: they use the library's code.
#pragma once

#include "widgets/update/UpdateFetch.h"

#include <juce_events/juce_events.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class IUpdateCheckClient;
class QMUpdateCheckThread;

class UpdateChecks final : private juce::DeletedAtShutdown {
public:
    /// How long the last client of a question waits for its thread, in milliseconds.
    static constexpr int patienceMs = 30;

    /// Tells the client at once where the answer is known, and asks for it where nobody has yet.
    /// The product's name in UTF-8, empty for none. Not to be called twice for a client. [message
    /// thread]
    static void ask(const std::string& product, IUpdateCheckClient& client);

    /// The client is told nothing from now on. When it was the last one that waited for an answer
    /// the question is stopped. To be called by every client before it goes. [message thread]
    static void leave(const IUpdateCheckClient& client);

    /// Who answers from now on; null for the maker's service. Waits for the questions that are
    /// under way, and forgets what is known. For tests. [message thread]
    static void setFetch(UpdateFetch fetch);

    /// Whether the thread of any question is running. [message thread]
    [[nodiscard]] static bool isAnyThreadRunning();

    UpdateChecks(const UpdateChecks&) = delete;
    UpdateChecks& operator=(const UpdateChecks&) = delete;

private:
    struct Question {
        std::uint64_t number = 0;
        std::string product;
        std::unique_ptr<QMUpdateCheckThread> thread;
        std::vector<IUpdateCheckClient*> clients; ///< not told yet
    };

    UpdateChecks() = default;
    /// Waits for every thread.
    ~UpdateChecks() override;

    static UpdateChecks& get();
    static void replyArrived(std::uint64_t number);

    void start(const std::string& product);
    void join(const std::string& product, IUpdateCheckClient& client);
    void remove(const IUpdateCheckClient& client);
    void stopAll();
    /// Lets go of threads that have ended and that nobody waits for.
    void clearUp();
    /// Not while the thread is asking.
    static void keepAnswer(const Question& question);

    static UpdateChecks* instance;
    std::uint64_t lastNumber = 0;
    std::vector<std::unique_ptr<Question>> questions; ///< whose threads may be running
};
