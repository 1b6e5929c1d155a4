// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/CommandLineParts.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/ParameterValueText.h"

#include <CLI/CLI.hpp>

#include <cmath>

void addSettingsOption(CLI::App& command, std::vector<std::string>& settings) {
    command
        .add_option("--set", settings,
                    "Set a parameter (see 'params'), in display units or by value name; may be "
                    "repeated")
        ->type_name("ID=VALUE")
        ->allow_extra_args(false)
        ->expected(1)
        ->take_all();
}

void addBlockOption(CLI::App& command, std::string& text) {
    command.add_option("--block", text, "Frames a block (512)")->type_name("N");
}

void addChannelsOption(CLI::App& command, std::string& text) {
    command
        .add_option("--channels", text,
                    "1 or 2: the type to run, whatever the file. One channel goes to both sides, "
                    "two are averaged for one")
        ->type_name("N");
}

std::int32_t parseBlockSize(const std::string& text) {
    constexpr std::int32_t largestBlock = 1 << 20;
    const std::optional<double> number = parseNumber(text);
    if (!number || *number < 1.0 || *number > largestBlock || *number != std::floor(*number)) {
        throw HostError("--block " + text + ": must be a whole number from 1 to " +
                        std::to_string(largestBlock));
    }
    return static_cast<std::int32_t>(*number);
}

std::optional<int> parseChannels(const std::string& text) {
    if (text.empty())
        return std::nullopt;
    if (text != "1" && text != "2")
        throw HostError("--channels " + text + ": must be 1 or 2");
    return text == "1" ? 1 : 2;
}
