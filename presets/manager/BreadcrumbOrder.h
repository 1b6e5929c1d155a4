// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the list of all presets.
#pragma once

#include "presets/manager/QMPresetItem.h"

#include <vector>

/// Sorts by breadcrumb: bytes compared as signed numbers, the letters A to Z as their small ones,
/// whatever language the host has set; a text before those it begins. What is equal stays in order.
/// [message thread]
void sortByBreadcrumb(std::vector<QMPresetItem*>& presets);
