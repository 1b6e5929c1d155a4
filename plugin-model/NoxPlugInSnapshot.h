// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of an instance put aside for a while: while presets are tried out, or to compare
// with the current preset.
#pragma once

#include "presets/record/QMGenericPreset.h"
#include "presets/record/SettingLocator.h"

struct NoxPlugInSnapshot {
    QMGenericPreset record; ///< the complete state
    SettingLocator locator; ///< the preset that was current
};
