// SPDX-License-Identifier: GPL-3.0-or-later
// Knobs, faders and readouts for a factory of widgets. [message thread]
#pragma once

class QMWidgetFactory;

/// Readouts of controls are made as these are, too.
void addControlWidgetTypes(QMWidgetFactory& factory);
