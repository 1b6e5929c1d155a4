// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/library/WidgetLibrary.h"

#include "widgets/buttons/ButtonWidgetTypes.h"
#include "widgets/controls/ControlWidgetTypes.h"
#include "widgets/history/HistoryWidgetTypes.h"
#include "widgets/menus/MenuWidgetTypes.h"
#include "widgets/meters/MeterWidgetTypes.h"
#include "widgets/statics/StaticWidgetTypes.h"
#include "widgets/update/UpdateWidgetTypes.h"

void addWidgetLibrary(QMWidgetFactory& factory) {
    addStaticWidgetTypes(factory);
    addControlWidgetTypes(factory);
    addButtonWidgetTypes(factory);
    addMenuWidgetTypes(factory);
    addMeterWidgetTypes(factory);
    addHistoryWidgetTypes(factory);
    addUpdateWidgetTypes(factory);
}
