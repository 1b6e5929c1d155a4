// SPDX-License-Identifier: GPL-3.0-or-later
// Something that can be told about notifications, by one centre at a time. Used on the message
// thread alone.
#pragma once

#include "widgets/notifications/QMNotificationArguments.h"

class QMNotificationCenter;

class QMNotificationTarget {
public:
    QMNotificationTarget() = default;
    /// Leaves its centre. [message thread]
    virtual ~QMNotificationTarget();
    QMNotificationTarget(const QMNotificationTarget&) = delete;
    QMNotificationTarget& operator=(const QMNotificationTarget&) = delete;

    /// Called by centres: the target belongs to this one now, or to none. It leaves the one it
    /// belonged to before. [message thread]
    virtual void setNotificationCenter(QMNotificationCenter* newCenter);

    /// [message thread]
    [[nodiscard]] QMNotificationCenter* notificationCenter() const { return center; }

    /// [message thread]
    virtual void notify(QMNotificationID) {}

    /// [message thread]
    virtual void notify(QMNotificationID, const QMNotificationArguments&) {}

private:
    void leave();

    QMNotificationCenter* center = nullptr;
};
