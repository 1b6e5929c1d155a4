// SPDX-License-Identifier: GPL-3.0-or-later
// The editors of the product's instances, for every adapter.
#pragma once

#include "widgets/ui/QMPlugInUIFactory.h"

/// [message thread]
QMPlugInUIFactory broltEditors();
