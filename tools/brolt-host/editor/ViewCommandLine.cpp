// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/ViewCommandLine.h"

#include "tools/brolt-host/CommandLineParts.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/ParameterValueText.h"
#include "tools/brolt-host/Utf8.h"

#include <CLI/CLI.hpp>

#include <cmath>

namespace {

std::optional<std::int32_t> parseScale(const std::string& text) {
    constexpr double largest = 1000.0;
    if (text.empty())
        return std::nullopt;
    const std::optional<double> number = parseNumber(text);
    if (!number || *number < 1.0 || *number > largest || *number != std::floor(*number))
        throw HostError("--scale " + text + ": must be a whole number of percent from 1 to 1000");
    return static_cast<std::int32_t>(*number);
}

std::optional<double> parseSeconds(const std::string& text) {
    constexpr double aDay = 86400.0;
    if (text.empty())
        return std::nullopt;
    const std::optional<double> number = parseNumber(text);
    if (!number || *number <= 0.0 || *number > aDay)
        throw HostError("--seconds " + text + ": must be a number above 0 and at most 86400");
    return number;
}

} // namespace

void ViewCommandLine::addTo(CLI::App& command) {
    addSettingsOption(command, settings);
    state.addStartTo(command);
    addBlockOption(command, block);
    addChannelsOption(command, channels);
    plugIn.addBundleTo(command);
    command
        .add_option("--scale", scale,
                    "The editor's size in percent of its design size, which it may round")
        ->type_name("PERCENT");
    command.add_flag("--generic", generic,
                     "The editor with one control for each parameter, instead of the product's");
}

ViewOptions ViewCommandLine::options() const {
    ViewOptions options;
    options.settings = settings;
    options.state = state.options();
    options.plugIn = plugIn.options();
    options.input = optionalPath(input);
    options.blockSize = parseBlockSize(block);
    options.channels = parseChannels(channels);
    options.magnification = parseScale(scale);
    options.seconds = parseSeconds(seconds);
    options.generic = generic;
    return options;
}
