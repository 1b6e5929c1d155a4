// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options around settings in files: those of render, and the preset command with its three
// parts.

#pragma once

#include "tools/brolt-host/state/StateForm.h"

#include <filesystem>
#include <optional>

/// What render starts from and leaves behind.
struct RenderStateOptions {
    std::optional<std::filesystem::path> state;
    std::optional<std::filesystem::path> preset;
    std::optional<std::filesystem::path> savedState;
    std::optional<std::filesystem::path> savedPreset;
};

struct PresetShowOptions {
    std::filesystem::path file;
};

struct PresetListOptions {
    std::optional<std::filesystem::path> factoryFolder; ///< instead of the product's own
    std::optional<std::filesystem::path> userFolder;
    bool tabSeparated = false;
};

struct PresetConvertOptions {
    std::filesystem::path input;
    std::filesystem::path output;
    StateForm form = StateForm::preset;
};
