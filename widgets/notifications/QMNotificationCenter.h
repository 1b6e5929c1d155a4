// SPDX-License-Identifier: GPL-3.0-or-later
// A registry of targets, to which numbered notifications are sent: at once, or a turn of the
// message loop later, each number once. Used on the message thread alone, without a lock.
//
// Targets may come and go, and the centre itself may go, while a notification is delivered.
#pragma once

#include "widgets/notifications/QMNotificationTarget.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <vector>

class QMSimpleDeferredAsyncNotification;

class QMNotificationCenter {
public:
    QMNotificationCenter();
    /// Lets go of its targets; those that belong to it (PluginUIParameterNT) go with it.
    /// [message thread]
    virtual ~QMNotificationCenter();
    QMNotificationCenter(const QMNotificationCenter&) = delete;
    QMNotificationCenter& operator=(const QMNotificationCenter&) = delete;

    /// [message thread]
    void registerTarget(QMNotificationTarget& target);
    /// A target of another centre is left alone. [message thread]
    void unregisterTarget(QMNotificationTarget& target);

    /// Tells every target at once: the arguments, then the number alone, unless it has left in
    /// between. Dropped while the centre is blocked, or delivers the same number. [message thread]
    void postNotification(QMNotificationID id, const QMNotificationArguments& arguments);

    /// Tells at once every target there is now. Kept for flush while the centre is blocked, or
    /// delivers the same number. [message thread]
    void notify(QMNotificationID id);

    /// Tells in the next turn of the message loop, however often it was posted until then.
    /// [message thread]
    void postDeferredNotification(QMNotificationID id);

    /// Unless discarding: calls the observers in the order they came and delivers what was kept.
    /// Either way observers and kept numbers are forgotten. [message thread]
    void flush(bool discard);

    /// Called once, by the next flush. [message thread]
    void addObserver(std::function<void()> observer);

    /// Blocks nest. [message thread]
    void block() { ++blockCount; }

    /// Delivers nothing by itself: see flush. [message thread]
    void unblock() { --blockCount; }

private:
    friend class QMNotificationTarget;
    friend class QMSimpleDeferredAsyncNotification;

    /// Tells whether the centre is still there after a call to somebody else.
    using Life = std::weak_ptr<const bool>;

    /// For a target that leaves by itself.
    void forgetTarget(QMNotificationTarget& target) { targets.erase(&target); }

    void deliverDeferred();

    void deferredMessageIsGone() { deferredMessage = nullptr; }

    std::set<QMNotificationTarget*> targets;
    std::set<QMNotificationID> inProgress;
    std::set<QMNotificationID> pending;
    std::int32_t blockCount = 0;
    std::set<QMNotificationID> deferred;
    QMSimpleDeferredAsyncNotification* deferredMessage = nullptr; ///< the dispatcher's, on its way
    std::vector<std::function<void()>> observers;
    std::shared_ptr<const bool> life = std::make_shared<const bool>(true);
};
