// SPDX-License-Identifier: GPL-3.0-or-later
//
// The command line's part about the plug-in's editor.

#pragma once

#include "tools/brolt-host/editor/ViewCommandLine.h"

/// The editor command's options as texts.
class EditorCommandLine {
public:
    /// Adds the command; the object must outlive the parsing. [message thread]
    explicit EditorCommandLine(CLI::App& app);

    /// Whether this is the command that the user gave. [message thread]
    [[nodiscard]] bool isGiven() const;

    /// Throws HostError. [message thread]
    [[nodiscard]] EditorOptions options() const;

private:
    const CLI::App* command;
    ViewCommandLine view;
    bool printEdits = false;
};

/// The screenshot command's options as texts.
class ScreenshotCommandLine {
public:
    /// Adds the command; the object must outlive the parsing. [message thread]
    explicit ScreenshotCommandLine(CLI::App& app);

    /// Whether this is the command that the user gave. [message thread]
    [[nodiscard]] bool isGiven() const;

    /// Throws HostError. [message thread]
    [[nodiscard]] ScreenshotOptions options() const;

private:
    const CLI::App* command;
    ViewCommandLine view;
    std::string output;
};
