// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options that say which editor of which instance is shown, as texts.

#pragma once

#include "tools/brolt-host/PlugInCommandLine.h"
#include "tools/brolt-host/editor/EditorOptions.h"
#include "tools/brolt-host/state/StateCommandLine.h"

#include <string>
#include <vector>

class ViewCommandLine {
public:
    /// Adds what both commands call by the same name; the object must outlive the parsing.
    /// [message thread]
    void addTo(CLI::App& command);

    /// Throws HostError for what is impossible. [message thread]
    [[nodiscard]] ViewOptions options() const;

    // Each command declares these in its own words.
    std::string input;
    std::string seconds;

private:
    std::vector<std::string> settings;
    RenderStateCommandLine state;
    PlugInCommandLine plugIn;
    std::string block = "512";
    std::string channels;
    std::string scale;
    bool generic = false;
};
