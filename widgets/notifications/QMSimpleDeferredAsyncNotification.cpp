// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/QMSimpleDeferredAsyncNotification.h"

#include "widgets/notifications/QMNotificationCenter.h"

QMSimpleDeferredAsyncNotification::~QMSimpleDeferredAsyncNotification() {
    if (armed)
        center.deferredMessageIsGone();
}

void QMSimpleDeferredAsyncNotification::messageCallback() {
    if (!armed)
        return;
    // From here on the centre has no message under way, and may go while it delivers.
    disarm();
    center.deliverDeferred();
}
