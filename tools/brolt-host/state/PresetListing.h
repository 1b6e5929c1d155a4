// SPDX-License-Identifier: GPL-3.0-or-later
//
// What "preset list" prints: the presets as the product's own browser finds and sorts them.

#pragma once

#include "tools/brolt-host/TextTable.h"
#include "tools/brolt-host/state/StateOptions.h"

#include <vector>

/// One row a preset below a heading. Throws HostError when a folder that was given is none.
/// Presets without an identifier get theirs, as they do when the product lists them.
/// [message thread]
std::vector<TextRow> presetListing(const PresetListOptions& options);
