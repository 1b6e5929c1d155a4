// SPDX-License-Identifier: GPL-3.0-or-later
//
// The three parts of the preset command. Each answers the program's exit status and throws
// HostError.

#pragma once

#include "tools/brolt-host/state/StateOptions.h"

/// [message thread]
int runPresetShow(const PresetShowOptions& options);

/// [message thread]
int runPresetList(const PresetListOptions& options);

/// [message thread]
int runPresetConvert(const PresetConvertOptions& options);
