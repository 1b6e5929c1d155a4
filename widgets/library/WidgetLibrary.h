// SPDX-License-Identifier: GPL-3.0-or-later
// All families of widgets there are, for editors built from tables.
#pragma once

class QMWidgetFactory;

/// Tells a factory of every type of widget in the library. [message thread]
void addWidgetLibrary(QMWidgetFactory& factory);
