// SPDX-License-Identifier: GPL-3.0-or-later
//
// Automation files: parameter changes over time, one a line.
//
//     # seconds  ID    value
//     0.5        sfre  45
//     2          mbyp  Bypass
//
// Blanks or tabulators separate the words, a # begins a comment, empty lines are allowed, and the
// lines may stand in any order.

#pragma once

#include "tools/brolt-host/ParameterValueText.h"

#include <filesystem>
#include <string>
#include <vector>

struct AutomationChange {
    double seconds; ///< from the beginning of the audio
    std::int32_t index;
    double value; ///< display units, within the parameter's range
};

struct Automation {
    /// By time; changes at one time in the order of their lines.
    std::vector<AutomationChange> changes;

    /// What to tell the user: for each parameter with values outside its range, the first of them
    /// and how many there are.
    std::vector<std::string> notices;
};

/// Throws HostError "<file>:<line>: <reason>" at the first line that cannot be understood, or
/// "<file>: <reason>" for a file that cannot be read. [message thread]
Automation readAutomation(const std::filesystem::path& file, const QM::IQMParameterSet& parameters);

/// The same for a text; `name` stands for the file in messages. [any thread]
Automation parseAutomation(const std::string& text, const std::string& name,
                           const QM::IQMParameterSet& parameters);
