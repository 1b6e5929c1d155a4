// SPDX-License-Identifier: GPL-3.0-or-later
//
// The command line's part about settings in files.

#pragma once

#include "tools/brolt-host/state/StateOptions.h"

#include <optional>
#include <string>
#include <variant>

namespace CLI {
class App;
}

using PresetOptions = std::variant<PresetShowOptions, PresetListOptions, PresetConvertOptions>;

/// The preset command's options as texts.
class PresetCommandLine {
public:
    /// Adds the command; the object must outlive the parsing. [message thread]
    explicit PresetCommandLine(CLI::App& app);

    /// Nothing when another command was given. Throws HostError. [message thread]
    [[nodiscard]] std::optional<PresetOptions> options() const;

private:
    const CLI::App* show;
    const CLI::App* list;
    const CLI::App* convert;
    std::string shownFile;
    std::string factoryFolder;
    std::string userFolder;
    bool tabSeparated = false;
    std::string input;
    std::string output;
    std::string form;
};

/// The render command's options about state as texts.
class RenderStateCommandLine {
public:
    /// Adds --state and --preset to a command that starts from them and saves nothing; the object
    /// must outlive the parsing. [message thread]
    void addStartTo(CLI::App& command);

    /// Adds all four options to the render command. [message thread]
    void addTo(CLI::App& render);

    [[nodiscard]] RenderStateOptions options() const;

private:
    std::string state;
    std::string preset;
    std::string savedState;
    std::string savedPreset;
};
