// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/ToolkitTask.h"

#include <juce_events/juce_events.h>

namespace {

void* callTask(void* task) {
    (*static_cast<const std::function<void()>*>(task))();
    return nullptr;
}

} // namespace

void runOnToolkitThread(const std::function<void()>& task) {
    juce::MessageManager* const messages = juce::MessageManager::getInstance();
    if (messages->isThisTheMessageThread())
        task();
    else
        messages->callFunctionOnMessageThread(callTask,
                                              const_cast<void*>(static_cast<const void*>(&task)));
}
