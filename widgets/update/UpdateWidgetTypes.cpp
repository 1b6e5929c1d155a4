// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/UpdateWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/update/QMUpdateCheckWidget.h"

void addUpdateWidgetTypes(QMWidgetFactory& factory, const juce::String& productName) {
    factory.add(33, {[productName](const QMWidgetDescriptor&) {
                    return std::make_unique<QMUpdateCheckWidget>(productName);
                }});
}
