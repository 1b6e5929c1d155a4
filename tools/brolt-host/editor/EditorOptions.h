// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options of the two commands that show the plug-in's editor: editor in a window, screenshot in
// a picture.

#pragma once

#include "tools/brolt-host/PlugInOptions.h"
#include "tools/brolt-host/state/StateOptions.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// What to show, and of which instance.
struct ViewOptions {
    std::vector<std::string> settings; ///< "ID=VALUE" each
    RenderStateOptions state;          ///< to start from; nothing is saved
    PlugInOptions plugIn;
    std::optional<std::filesystem::path> input; ///< the audio that displays follow
    std::int32_t blockSize = 512;
    std::optional<int> channels;               ///< nothing takes as many as the input has
    std::optional<std::int32_t> magnification; ///< percent; nothing leaves it to the editor
    std::optional<double> seconds;             ///< above 0
    bool generic = false;                      ///< the editor with one control for each parameter
};

struct EditorOptions {
    ViewOptions view; ///< `seconds`: how long the window stays open
    bool printEdits = false;
};

struct ScreenshotOptions {
    ViewOptions view; ///< `seconds`: how much of the input is played
    std::filesystem::path output;
};
