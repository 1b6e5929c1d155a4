// SPDX-License-Identifier: GPL-3.0-or-later
// The type codes of meters. [message thread]
#pragma once

class QMWidgetFactory;

void addMeterWidgetTypes(QMWidgetFactory& factory);
