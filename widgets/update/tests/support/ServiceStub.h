// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the place of the maker's service while it lives, so that nothing goes over the network.
#pragma once

#include "widgets/update/UpdateChecks.h"

#include <juce_core/juce_core.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <vector>

class ServiceStub {
public:
    ServiceStub() {
        UpdateChecks::setFetch(
            [this](const QM::UpdateParameters& parameters, const std::stop_token& stop) {
                return answer(parameters, stop);
            });
    }

    ~ServiceStub() {
        letGo();
        UpdateChecks::setFetch(nullptr);
    }

    ServiceStub(const ServiceStub&) = delete;
    ServiceStub& operator=(const ServiceStub&) = delete;

    /// What it answers from now on; nothing is a connection that failed.
    void setReply(std::optional<std::string> text) {
        const std::scoped_lock lock(mutex);
        reply = std::move(text);
    }

    void setThrows() {
        const std::scoped_lock lock(mutex);
        throws = true;
    }

    /// Questions get no answer from now on and do not heed that they are asked to stop, like a
    /// thread in the depths of the system's network code.
    void hold() {
        const std::scoped_lock lock(mutex);
        isHolding = true;
    }

    void letGo() {
        const std::scoped_lock lock(mutex);
        isHolding = false;
        changed.notify_all();
    }

    /// False when there are not so many questions within half a minute.
    bool waitForQuestions(std::size_t count) {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::seconds(30),
                                [&] { return questions.size() >= count; });
    }

    /// Each question's parameters, in the order they came.
    [[nodiscard]] std::vector<QM::UpdateParameters> getQuestions() const {
        const std::scoped_lock lock(mutex);
        return questions;
    }

    [[nodiscard]] std::size_t getQuestionCount() const { return getQuestions().size(); }

    /// Of the thread that asked last.
    [[nodiscard]] juce::String getThreadName() const {
        const std::scoped_lock lock(mutex);
        return threadName;
    }

    /// Whether the question that came last has been asked to stop.
    [[nodiscard]] bool isAskedToStop() const {
        const std::scoped_lock lock(mutex);
        return lastStop.stop_requested();
    }

    /// Questions that are being answered at this moment.
    [[nodiscard]] int getUnderWay() const {
        const std::scoped_lock lock(mutex);
        return underWay;
    }

private:
    std::optional<std::string> answer(const QM::UpdateParameters& parameters,
                                      const std::stop_token& stop) {
        std::unique_lock lock(mutex);
        questions.push_back(parameters);
        lastStop = stop;
        if (const juce::Thread* const thread = juce::Thread::getCurrentThread())
            threadName = thread->getThreadName();
        ++underWay;
        changed.notify_all();
        changed.wait(lock, [this] { return !isHolding; });
        --underWay;
        if (throws)
            throw std::runtime_error("no network");
        return reply;
    }

    mutable std::mutex mutex;
    std::condition_variable changed;
    std::optional<std::string> reply;
    bool throws = false;
    bool isHolding = false;
    int underWay = 0;
    std::vector<QM::UpdateParameters> questions;
    std::stop_token lastStop;
    juce::String threadName;
};
