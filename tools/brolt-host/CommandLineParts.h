// SPDX-License-Identifier: GPL-3.0-or-later
//
// Options that several commands have in common: how they are declared, and what may stand there.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

/// Adds --set; `settings` must outlive the parsing, as the texts below must. [message thread]
void addSettingsOption(CLI::App& command, std::vector<std::string>& settings);

/// Adds --block. [message thread]
void addBlockOption(CLI::App& command, std::string& text);

/// Adds --channels. [message thread]
void addChannelsOption(CLI::App& command, std::string& text);

/// Frames. Throws HostError unless it is a whole number from 1 to 2^20. [any thread]
std::int32_t parseBlockSize(const std::string& text);

/// 1 or 2, or nothing for the empty text. Throws HostError. [any thread]
std::optional<int> parseChannels(const std::string& text);
