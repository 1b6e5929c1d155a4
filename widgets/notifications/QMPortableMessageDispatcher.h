// SPDX-License-Identifier: GPL-3.0-or-later
// The process's way onto the toolkit's message thread.
#pragma once

#include "widgets/notifications/QMPortableMessage.h"

#include <memory>

class QMPortableMessageDispatcher {
public:
    /// Made on first use, there until the process ends. [any thread but audio]
    static QMPortableMessageDispatcher& getInstance();

    /// Called on the message thread without forceAsync, delivers the message before it returns;
    /// otherwise the message waits for a coming turn of the message loop. False when the toolkit
    /// takes no messages: not started, or going. The message is gone then, undelivered.
    /// [any thread but audio]
    bool post(std::unique_ptr<QMPortableMessage> message, bool forceAsync = false);

private:
    QMPortableMessageDispatcher() = default;
};
