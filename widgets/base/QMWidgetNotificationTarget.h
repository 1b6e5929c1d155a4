// SPDX-License-Identifier: GPL-3.0-or-later
// Lets a widget follow the notifications of a centre: one with a value is shown in the slot of its
// number, one without makes the widget draw anew. [message thread]
#pragma once

#include "widgets/notifications/QMNotificationTarget.h"

class QMWidget;

class QMWidgetNotificationTarget final : public QMNotificationTarget {
public:
    /// The widget must outlive it.
    explicit QMWidgetNotificationTarget(QMWidget& widgetToTell)
        : widget(widgetToTell) {}

    void notify(QMNotificationID id) override;
    void notify(QMNotificationID id, const QMNotificationArguments& arguments) override;

private:
    QMWidget& widget;
};
