// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's types of labels, lines, bevels and pictures.
#pragma once

class QMWidgetFactory;

/// [message thread]
void addStaticWidgetTypes(QMWidgetFactory& factory);
