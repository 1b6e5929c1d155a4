// SPDX-License-Identifier: GPL-3.0-or-later
//
// In which form the tool drives the product.

#pragma once

#include <filesystem>
#include <optional>

enum class PlugInForm {
    vst3,  ///< the bundle, through the VST3 interface, as a workstation does
    model, ///< the plug-in model that is part of the tool, with no interface in between
};

/// What a VST3 host says of its hurry. It decides which way automation takes.
enum class Vst3Mode {
    realtime, ///< to the edit controller, between the blocks
    offline,  ///< into the block, as its parameter changes
};

struct PlugInOptions {
    PlugInForm form = PlugInForm::vst3;
    std::optional<std::filesystem::path> bundle; ///< nothing takes the one beside the program
    Vst3Mode mode = Vst3Mode::realtime;
};
