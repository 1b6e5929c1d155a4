// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/meters/QMMeterWidget.h"

#include <memory>

void addMeterWidgetTypes(QMWidgetFactory& factory) {
    factory.add(17, {[](const QMWidgetDescriptor&) { return std::make_unique<QMMeterWidget>(); }});
    factory.add(19, {[](const QMWidgetDescriptor&) {
                    return std::make_unique<QMMeterCalibrationWidget>();
                }});
}
