// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/LinuxMessages.h"

#ifndef _WIN32

#    include "QMShell/toolkit/OwnMessageThread.h"
#    include "QMShell/toolkit/WindowSystemErrors.h"

#    include <algorithm>
#    include <utility>

namespace {

/// How deep this thread is in deliveries and tasks.
thread_local int depth = 0;

} // namespace

/// The right to be the message thread, for the length of a delivery or a task.
class LinuxMessages::Turn {
public:
    explicit Turn(LinuxMessages& messages)
        : lock(messages.turn) {
        ++depth;
        juce::MessageManager::getInstance()->setCurrentThreadAsMessageThread();
    }

    ~Turn() { --depth; }

    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    std::scoped_lock<std::recursive_mutex> lock;
    WindowSystemErrors errors;
};

std::shared_ptr<LinuxMessages> LinuxMessages::make(std::shared_ptr<IHostRunLoop> first) {
    const std::shared_ptr<LinuxMessages> messages(new LinuxMessages);
    const std::unique_lock lock(messages->mode);
    if (first)
        messages->lent.push_back(std::move(first));
    messages->choose();
    return messages;
}

LinuxMessages::LinuxMessages() {
    juce::LinuxEventLoopInternal::registerLinuxEventLoopListener(*this);
}

LinuxMessages::~LinuxMessages() {
    ownThread.reset();
    const std::scoped_lock lock(turn);
    juce::MessageManager::getInstance()->setCurrentThreadAsMessageThread();
    stopDriving();
    juce::LinuxEventLoopInternal::deregisterLinuxEventLoopListener(*this);
}

void LinuxMessages::run(const std::function<void()>& task) {
    if (depth > 0 || OwnMessageThread::isThisThread()) {
        task();
        return;
    }
    {
        const std::shared_lock lock(mode);
        if (ownThread) {
            ownThread->run(task);
        } else {
            const Turn now(*this);
            task();
        }
    }
    chooseIfDue();
}

void LinuxMessages::lend(std::shared_ptr<IHostRunLoop> hostRunLoop) {
    {
        const std::scoped_lock lock(turn);
        lent.push_back(std::move(hostRunLoop));
    }
    choiceIsDue = true;
    chooseIfDue();
}

void LinuxMessages::takeBack(const IHostRunLoop* hostRunLoop) {
    {
        const std::scoped_lock lock(turn);
        std::erase_if(lent, [&](const auto& loop) { return loop.get() == hostRunLoop; });
        if (driver.get() == hostRunLoop)
            stopDriving();
    }
    choiceIsDue = true;
    chooseIfDue();
}

void LinuxMessages::abandon() {
    if (ownThread)
        ownThread->abandon();
}

void LinuxMessages::chooseIfDue() {
    if (depth > 0 || !choiceIsDue.exchange(false))
        return;
    const std::unique_lock lock(mode);
    choose();
}

void LinuxMessages::choose() {
    if (driver)
        return;
    for (const std::shared_ptr<IHostRunLoop>& loop : lent) {
        // Two threads must not deliver at once.
        ownThread.reset();
        if (drive(loop))
            return;
    }
    if (!ownThread)
        ownThread = std::make_unique<OwnMessageThread>();
}

bool LinuxMessages::drive(const std::shared_ptr<IHostRunLoop>& loop) {
    const Turn now(*this);
    driver = loop;
    if (watchWhatThereIs())
        return true;
    stopDriving();
    return false;
}

void LinuxMessages::stopDriving() {
    for (const int descriptor : std::exchange(watched, {}))
        driver->unwatch(descriptor);
    driver.reset();
}

void LinuxMessages::fdCallbacksChanged() {
    const std::scoped_lock lock(turn);
    if (driver)
        watchWhatThereIs();
}

bool LinuxMessages::watchWhatThereIs() {
    const std::vector<int> list = juce::LinuxEventLoopInternal::getRegisteredFds();
    const std::set<int> wanted(list.begin(), list.end());
    std::erase_if(watched, [&](int descriptor) {
        if (wanted.contains(descriptor))
            return false;
        driver->unwatch(descriptor);
        return true;
    });
    bool allAreWatched = true;
    for (const int descriptor : wanted) {
        if (watched.contains(descriptor))
            continue;
        const std::weak_ptr<LinuxMessages> messages = weak_from_this();
        if (driver->watch(descriptor, [messages] {
                if (const auto stillThere = messages.lock())
                    stillThere->deliver();
            }))
            watched.insert(descriptor);
        else
            allAreWatched = false;
    }
    return allAreWatched;
}

void LinuxMessages::deliver() {
    {
        const Turn now(*this);
        // Each of them, whichever became readable: the connection to the window system may have
        // read events already that make nothing readable any more.
        for (const int descriptor : juce::LinuxEventLoopInternal::getRegisteredFds()) {
            if (driver)
                juce::LinuxEventLoopInternal::invokeEventLoopCallbackForFd(descriptor);
        }
    }
    chooseIfDue();
}

#endif
