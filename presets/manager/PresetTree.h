// SPDX-License-Identifier: GPL-3.0-or-later
// What a scan of the preset folders found, and the ways to a preset.
#pragma once

#include "presets/manager/QMPresetFolder.h"

#include <map>

struct PresetTree {
    std::unique_ptr<QMPresetFolder> factoryRoot;
    std::unique_ptr<QMPresetFolder> userRoot;
    /// Every preset of both roots, however deep, sorted by breadcrumb.
    std::vector<QMPresetItem*> presets;
    /// By unique identifier. Where files share one, the one scanned last. An identifier that was
    /// asked for in vain is there without an item.
    std::map<std::uint64_t, QMPresetItem*> byUniqueId;
};
