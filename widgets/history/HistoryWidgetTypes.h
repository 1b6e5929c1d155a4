// SPDX-License-Identifier: GPL-3.0-or-later
// The type codes of histories. [message thread]
#pragma once

class QMWidgetFactory;

void addHistoryWidgetTypes(QMWidgetFactory& factory);
