// SPDX-License-Identifier: GPL-3.0-or-later
// Where a product's presets are: those that are installed with it, and the user's own.
#pragma once

#include <string>

struct PresetFolders {
    std::string factory; ///< absolute path, UTF-8
    std::string user;    ///< absolute path, UTF-8

    friend bool operator==(const PresetFolders&, const PresetFolders&) = default;
};

/// Below the system's folders for programs' shared data and for the user's documents, in a folder
/// of that name; "QM Plug-In" stands in for an empty one. Neither needs to exist. [any thread]
[[nodiscard]] PresetFolders findPresetFolders(const std::string& productFolderName);

/// The same, found once: a process has one product, and the name of the first call holds for all
/// that follow. [any thread]
[[nodiscard]] const PresetFolders& presetFoldersOfProcess(const std::string& productFolderName);
