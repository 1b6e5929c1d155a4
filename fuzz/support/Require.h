// SPDX-License-Identifier: GPL-3.0-or-later
// What has to hold for every input of a fuzz target.
#pragma once

#include <string>

/// Ends the process with the message, so that the fuzzer keeps the input, unless the condition
/// holds.
void require(bool condition, const char* message);

/// The same for two texts that have to be equal; prints both.
void requireEqual(const std::string& actual, const std::string& expected, const char* message);
