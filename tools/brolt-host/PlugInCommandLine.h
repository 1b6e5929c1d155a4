// SPDX-License-Identifier: GPL-3.0-or-later
//
// The command line's part about the form in which the product is driven.

#pragma once

#include "tools/brolt-host/PlugInOptions.h"

#include <string>

namespace CLI {
class App;
}

/// The options as texts.
class PlugInCommandLine {
public:
    /// Adds --format and --plugin to a command; the object must outlive the parsing.
    /// [message thread]
    void addTo(CLI::App& command);

    /// Adds --plugin alone, to a command that is for the bundle. [message thread]
    void addBundleTo(CLI::App& command);

    /// Adds --mode to a command that processes audio. [message thread]
    void addModeTo(CLI::App& command);

    /// Throws HostError for names that are none and options that do not go together.
    /// [message thread]
    [[nodiscard]] PlugInOptions options() const;

private:
    [[nodiscard]] PlugInForm form() const;
    void checkModelOptions() const;

    std::string formName;
    std::string bundle;
    std::string modeName;
};
