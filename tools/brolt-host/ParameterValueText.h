// SPDX-License-Identifier: GPL-3.0-or-later
//
// Parameters as the command line and automation files name them, and their values as they spell
// them.

#pragma once

#include "plugin-model/IQMParameterSet.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A parameter and the value it is to take.
struct ParameterSetting {
    std::int32_t index;
    double value;            ///< display units, within the parameter's range
    std::string clampNotice; ///< empty, or what to tell the user when the value was outside
};

/// A finite decimal number, whatever the locale; a plus sign is allowed. Nothing for anything else:
/// blanks, units, "inf" and numbers beyond a double included. [any thread]
std::optional<double> parseNumber(std::string_view text);

/// Takes a setting apart: `id` is a four-character identifier, `value` a number in display units
/// or, for a switch, one of its value names in upper or lower case. Throws HostError, whose message
/// does not say where the setting stood. [any thread]
ParameterSetting parseSetting(const QM::IQMParameterSet& parameters, std::string_view id,
                              std::string_view value);

/// The same for "ID=VALUE", with the text in front of the message. [any thread]
ParameterSetting parseAssignment(const QM::IQMParameterSet& parameters, const std::string& text);
