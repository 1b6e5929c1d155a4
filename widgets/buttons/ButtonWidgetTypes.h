// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's types of buttons and selectors.
#pragma once

class QMWidgetFactory;

/// [message thread]
void addButtonWidgetTypes(QMWidgetFactory& factory);
