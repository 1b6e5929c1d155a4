// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/QMNotificationTarget.h"

#include "widgets/notifications/QMNotificationCenter.h"

#include <utility>

QMNotificationTarget::~QMNotificationTarget() {
    leave();
}

void QMNotificationTarget::setNotificationCenter(QMNotificationCenter* newCenter) {
    if (center != newCenter)
        leave();
    center = newCenter;
}

void QMNotificationTarget::leave() {
    if (QMNotificationCenter* const left = std::exchange(center, nullptr))
        left->forgetTarget(*this);
}
