// SPDX-License-Identifier: GPL-3.0-or-later
// Owns one object of settings for as long as it is held. [message thread]
#pragma once

#include "presets/record/IPresetHolder.h"

#include <memory>

template <typename Settings>
class QMPresetHolder : public IPresetHolder {
public:
    explicit QMPresetHolder(std::unique_ptr<Settings> heldSettings)
        : settings_(std::move(heldSettings)) {}

    [[nodiscard]] const Settings& settings() const { return *settings_; }

private:
    std::unique_ptr<Settings> settings_;
};
