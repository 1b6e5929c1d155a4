// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/HostDrivenMessages.h"

#ifndef _WIN32

#    include <vector>

HostDrivenMessages::HostDrivenMessages(std::unique_ptr<IHostRunLoop> hostRunLoop)
    : runLoop(std::move(hostRunLoop)) {
    juce::LinuxEventLoopInternal::registerLinuxEventLoopListener(*this);
    fdCallbacksChanged();
}

HostDrivenMessages::~HostDrivenMessages() {
    const std::scoped_lock lock(turn);
    juce::MessageManager::getInstance()->setCurrentThreadAsMessageThread();
    juce::LinuxEventLoopInternal::deregisterLinuxEventLoopListener(*this);
    for (const int descriptor : watched)
        runLoop->unwatch(descriptor);
}

void HostDrivenMessages::run(const std::function<void()>& task) {
    const std::scoped_lock lock(turn);
    juce::MessageManager::getInstance()->setCurrentThreadAsMessageThread();
    task();
}

void HostDrivenMessages::fdCallbacksChanged() {
    const std::scoped_lock lock(turn);
    const std::vector<int> list = juce::LinuxEventLoopInternal::getRegisteredFds();
    const std::set<int> wanted(list.begin(), list.end());
    std::erase_if(watched, [&](int descriptor) {
        if (wanted.contains(descriptor))
            return false;
        runLoop->unwatch(descriptor);
        return true;
    });
    for (const int descriptor : wanted) {
        if (watched.contains(descriptor))
            continue;
        if (runLoop->watch(descriptor, [this, descriptor] { deliver(descriptor); }))
            watched.insert(descriptor);
        else
            refused = true;
    }
}

void HostDrivenMessages::deliver(int descriptor) {
    run([descriptor] { juce::LinuxEventLoopInternal::invokeEventLoopCallbackForFd(descriptor); });
}

#endif
