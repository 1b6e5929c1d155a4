// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HistoryWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/history/QMMeterHistory.h"
#include "widgets/history/QMPitchHistory.h"

#include <memory>

void addHistoryWidgetTypes(QMWidgetFactory& factory) {
    factory.add(30, {[](const QMWidgetDescriptor&) { return std::make_unique<QMMeterHistory>(); }});
    factory.add(36, {[](const QMWidgetDescriptor& descriptor) {
                    return std::make_unique<QMPitchHistory>(QMPitchHistory::usualLength,
                                                            descriptor.style);
                }});
}
