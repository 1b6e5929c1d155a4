// SPDX-License-Identifier: GPL-3.0-or-later
// The user's desktop through the toolkit.
#pragma once

#include "presets/manager/IPresetDesktop.h"

class PresetDesktop : public IPresetDesktop {
public:
    /// What is gone already counts as moved. [message thread]
    bool moveToTrash(const std::string& path) override;
    /// [message thread]
    void reveal(const std::string& path) override;
};
