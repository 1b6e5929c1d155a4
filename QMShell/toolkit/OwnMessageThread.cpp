// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/OwnMessageThread.h"

#ifndef _WIN32

#    include "QMShell/toolkit/ToolkitTask.h"
#    include "QMShell/toolkit/WindowSystemErrors.h"

#    include <juce_events/juce_events.h>

#    include <pthread.h>

namespace juce {
// The toolkit's plug-in wrappers declare it themselves, too: no header of the toolkit does.
bool dispatchNextMessageOnSystemQueue(bool returnIfNoPendingMessages);
} // namespace juce

namespace {

thread_local bool thisIsOne = false;

} // namespace

bool OwnMessageThread::isThisThread() {
    return thisIsOne;
}

OwnMessageThread::OwnMessageThread()
    : thread([this] { deliver(); }) {
    isDelivering.wait(false);
}

OwnMessageThread::~OwnMessageThread() {
    endThread();
}

void OwnMessageThread::abandon() {
    endThread();
}

void OwnMessageThread::endThread() {
    if (!thread.joinable())
        return;
    run([this] { shallEnd = true; });
    // Whoever hands a task over is still busy with the toolkit's queue for a moment when the task
    // has run.
    isLeftAlone = true;
    isLeftAlone.notify_one();
    thread.join();
}

void OwnMessageThread::run(const std::function<void()>& task) {
    runOnToolkitThread(task);
}

void OwnMessageThread::deliver() {
    // As debuggers and system monitors show it; at most fifteen characters.
    pthread_setname_np(pthread_self(), "plug-in events");
    thisIsOne = true;
    juce::MessageManager::getInstance()->setCurrentThreadAsMessageThread();
    isDelivering = true;
    isDelivering.notify_one();
    while (!shallEnd) {
        // Once each time: the window system's library comes with the first window.
        const WindowSystemErrors errors;
        juce::dispatchNextMessageOnSystemQueue(false);
    }
    isLeftAlone.wait(false);
}

#endif
