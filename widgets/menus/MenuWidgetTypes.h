// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's types of menus.
#pragma once

class QMWidgetFactory;

/// [message thread]
void addMenuWidgetTypes(QMWidgetFactory& factory);
