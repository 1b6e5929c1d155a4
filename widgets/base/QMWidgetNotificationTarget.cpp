// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/base/QMWidgetNotificationTarget.h"

#include "widgets/base/QMWidget.h"

void QMWidgetNotificationTarget::notify(QMNotificationID) {
    widget.repaint();
}

void QMWidgetNotificationTarget::notify(QMNotificationID,
                                        const QMNotificationArguments& arguments) {
    if (arguments.index >= 0)
        widget.setParameterValue(static_cast<std::uint32_t>(arguments.index), arguments.value,
                                 false);
}
