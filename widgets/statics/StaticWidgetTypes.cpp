// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/StaticWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMDividerWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"

void addStaticWidgetTypes(QMWidgetFactory& factory) {
    factory.add(6, {[](const QMWidgetDescriptor&) { return std::make_unique<QMLabelWidget>(); }});
    factory.add(11,
                {[](const QMWidgetDescriptor&) { return std::make_unique<QMDividerWidget>(); }});
    factory.add(12, {[](const QMWidgetDescriptor&) { return std::make_unique<QMBevelWidget>(); }});
    factory.add(18, {[](const QMWidgetDescriptor& descriptor) {
                    return std::make_unique<QMImageWidget>(descriptor.style);
                }});
}
