// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/QMPortableMessageDispatcher.h"

#include <juce_events/juce_events.h>

#include <utility>

namespace {

/// The toolkit's message around one of ours; goes when it has been delivered or cannot be.
class QMPortableMessageCallback final : public juce::MessageManager::MessageBase {
public:
    explicit QMPortableMessageCallback(std::unique_ptr<QMPortableMessage> portable)
        : message(std::move(portable)) {}

    void messageCallback() override { message->messageCallback(); }

private:
    std::unique_ptr<QMPortableMessage> message;
};

} // namespace

QMPortableMessageDispatcher& QMPortableMessageDispatcher::getInstance() {
    static QMPortableMessageDispatcher dispatcher;
    return dispatcher;
}

bool QMPortableMessageDispatcher::post(std::unique_ptr<QMPortableMessage> message,
                                       bool forceAsync) {
    const juce::MessageManager* const messages = juce::MessageManager::getInstanceWithoutCreating();
    if (message == nullptr || messages == nullptr)
        return false;
    if (!forceAsync && messages->isThisTheMessageThread()) {
        message->messageCallback();
        return true;
    }
    const juce::ReferenceCountedObjectPtr<juce::MessageManager::MessageBase> posted(
        new QMPortableMessageCallback(std::move(message)));
    return posted->post();
}
