// SPDX-License-Identifier: GPL-3.0-or-later
// The message by which a centre delivers, a turn of the message loop later, what was put off.
#pragma once

#include "widgets/notifications/QMPortableMessage.h"

class QMNotificationCenter;

class QMSimpleDeferredAsyncNotification final : public QMPortableMessage {
public:
    explicit QMSimpleDeferredAsyncNotification(QMNotificationCenter& owner)
        : center(owner) {}

    /// The centre goes first, or hears that the message never came.
    ~QMSimpleDeferredAsyncNotification() override;

    void messageCallback() override;

    /// To be called by a centre that goes: a late delivery touches nothing. [message thread]
    void disarm() { armed = false; }

private:
    QMNotificationCenter& center;
    bool armed = true;
};
