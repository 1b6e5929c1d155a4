// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/UpdateChecks.h"

#include "widgets/notifications/QMAsyncPortableLambdaMessage.h"
#include "widgets/notifications/QMPortableMessageDispatcher.h"
#include "widgets/update/IUpdateCheckClient.h"
#include "widgets/update/QMUpdateCheckThread.h"
#include "widgets/update/ServicePost.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace {

/// By product; no reply for one that has been asked for without an answer. Outlives the toolkit,
/// which goes with the last instance and comes with the next.
std::map<std::string, std::optional<QM::UpdateReply>>& answers() {
    static std::map<std::string, std::optional<QM::UpdateReply>> all;
    return all;
}

std::optional<std::string> fetchFromService(const QM::UpdateParameters& parameters,
                                            const std::stop_token& stop) {
    return postToService(QM::updateServiceAddress, parameters, stop);
}

UpdateFetch& otherFetch() {
    static UpdateFetch fetch;
    return fetch;
}

QM::MachineFacts thisMachine() {
    using juce::SystemStats;
    return {SystemStats::getOperatingSystemName().toStdString(),
            SystemStats::getMemorySizeInMegabytes(), SystemStats::getNumCpus(),
            SystemStats::getCpuSpeedInMegahertz()};
}

} // namespace

UpdateChecks* UpdateChecks::instance = nullptr;

UpdateChecks& UpdateChecks::get() {
    if (instance == nullptr)
        instance = new UpdateChecks;
    return *instance;
}

UpdateChecks::~UpdateChecks() {
    stopAll();
    instance = nullptr;
}

void UpdateChecks::ask(const std::string& product, IUpdateCheckClient& client) {
    if (instance != nullptr)
        instance->clearUp();
    const auto [answer, isNew] = answers().try_emplace(product);
    if (answer->second) {
        client.updateReplyArrived(*answer->second);
        return;
    }
    if (isNew)
        get().start(product);
    if (instance != nullptr)
        instance->join(product, client);
}

void UpdateChecks::leave(const IUpdateCheckClient& client) {
    if (instance != nullptr)
        instance->remove(client);
}

void UpdateChecks::setFetch(UpdateFetch fetch) {
    if (instance != nullptr)
        instance->stopAll();
    answers().clear();
    otherFetch() = std::move(fetch);
}

bool UpdateChecks::isAnyThreadRunning() {
    return instance != nullptr &&
           std::any_of(instance->questions.begin(), instance->questions.end(),
                       [](const auto& question) { return question->thread->isThreadRunning(); });
}

void UpdateChecks::start(const std::string& product) {
    auto question = std::make_unique<Question>();
    question->number = ++lastNumber;
    question->product = product;
    question->thread = std::make_unique<QMUpdateCheckThread>(
        otherFetch() ? otherFetch() : fetchFromService,
        QM::versionCheckParameters(product, thisMachine(), QM::loadedInterface()),
        [number = question->number] {
            QMPortableMessageDispatcher::getInstance().post(
                makeLambdaMessage([number] { replyArrived(number); }), true);
        });
    if (question->thread->startThread())
        questions.push_back(std::move(question));
}

void UpdateChecks::join(const std::string& product, IUpdateCheckClient& client) {
    for (const auto& question : questions) {
        if (question->product == product)
            question->clients.push_back(&client);
    }
}

void UpdateChecks::remove(const IUpdateCheckClient& client) {
    for (const auto& question : questions) {
        if (std::erase(question->clients, &client) == 0 || !question->clients.empty())
            continue;
        question->thread->askToStop();
        question->thread->waitForEnd(patienceMs);
    }
    clearUp();
}

void UpdateChecks::replyArrived(std::uint64_t number) {
    if (instance == nullptr)
        return;
    const auto found =
        std::find_if(instance->questions.begin(), instance->questions.end(),
                     [number](const auto& question) { return question->number == number; });
    if (found == instance->questions.end())
        return;
    keepAnswer(**found);
    for (IUpdateCheckClient* const client : std::exchange((*found)->clients, {}))
        client->updateReplyArrived(*answers()[(*found)->product]);
}

void UpdateChecks::stopAll() {
    for (const auto& question : questions)
        question->thread->askToStop();
    for (const auto& question : questions) {
        question->thread->waitForEnd(-1);
        keepAnswer(*question);
    }
    questions.clear();
}

void UpdateChecks::clearUp() {
    std::erase_if(questions, [](const auto& question) {
        // With clients, a message for them is on its way.
        if (question->thread->isThreadRunning() || !question->clients.empty())
            return false;
        keepAnswer(*question);
        return true;
    });
}

void UpdateChecks::keepAnswer(const Question& question) {
    if (question.thread->getReply())
        answers()[question.product] = question.thread->getReply();
}
