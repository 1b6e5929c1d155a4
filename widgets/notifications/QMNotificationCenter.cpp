// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/QMNotificationCenter.h"

#include "widgets/notifications/QMPortableMessageDispatcher.h"
#include "widgets/notifications/QMSimpleDeferredAsyncNotification.h"

#include <utility>

QMNotificationCenter::QMNotificationCenter() = default;

QMNotificationCenter::~QMNotificationCenter() {
    if (deferredMessage != nullptr)
        deferredMessage->disarm();
    while (!targets.empty())
        unregisterTarget(**targets.begin());
}

void QMNotificationCenter::registerTarget(QMNotificationTarget& target) {
    if (targets.insert(&target).second)
        target.setNotificationCenter(this);
}

void QMNotificationCenter::unregisterTarget(QMNotificationTarget& target) {
    if (targets.erase(&target) != 0)
        target.setNotificationCenter(nullptr);
}

void QMNotificationCenter::postNotification(QMNotificationID id,
                                            const QMNotificationArguments& arguments) {
    if (blockCount != 0 || !inProgress.insert(id).second)
        return;
    const Life alive = life;
    for (auto next = targets.begin(); next != targets.end();) {
        QMNotificationTarget* const target = *next;
        target->notify(id, arguments);
        if (alive.expired())
            return;
        if (targets.contains(target))
            target->notify(id);
        if (alive.expired())
            return;
        // The set may be another one now.
        next = targets.upper_bound(target);
    }
    inProgress.erase(id);
}

void QMNotificationCenter::notify(QMNotificationID id) {
    if (blockCount != 0 || inProgress.contains(id)) {
        pending.insert(id);
        return;
    }
    inProgress.insert(id);
    const Life alive = life;
    for (QMNotificationTarget* const target :
         std::vector<QMNotificationTarget*>(targets.begin(), targets.end())) {
        if (!targets.contains(target))
            continue; // left, and may be gone
        target->notify(id);
        if (alive.expired())
            return;
    }
    inProgress.erase(id);
}

void QMNotificationCenter::postDeferredNotification(QMNotificationID id) {
    deferred.insert(id);
    if (deferredMessage != nullptr)
        return;
    auto message = std::make_unique<QMSimpleDeferredAsyncNotification>(*this);
    deferredMessage = message.get();
    constexpr bool forceAsync = true;
    // A message that cannot be posted says so itself, and the next posting tries again.
    QMPortableMessageDispatcher::getInstance().post(std::move(message), forceAsync);
}

void QMNotificationCenter::deliverDeferred() {
    deferredMessage = nullptr;
    // What is posted meanwhile is for the next turn.
    const std::set<QMNotificationID> due = std::exchange(deferred, {});
    const Life alive = life;
    for (const QMNotificationID id : due) {
        notify(id);
        if (alive.expired())
            return;
    }
}

void QMNotificationCenter::flush(bool discard) {
    const auto waiting = std::exchange(observers, {});
    const auto kept = std::exchange(pending, {});
    if (discard)
        return;
    const Life alive = life;
    for (const auto& observer : waiting) {
        observer();
        if (alive.expired())
            return;
    }
    for (const QMNotificationID id : kept) {
        notify(id);
        if (alive.expired())
            return;
    }
}

void QMNotificationCenter::addObserver(std::function<void()> observer) {
    observers.push_back(std::move(observer));
}
