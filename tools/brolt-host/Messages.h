// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the tool says on standard error: one line at a time, with the program's name in front.

#pragma once

#include <string>

/// Prints "brolt-host: <text>". Control characters, which a file name may well contain, become
/// question marks, so that a message stays one line. [message thread]
void printMessage(const std::string& text);

/// The text of printMessage, without its line end. [any thread]
std::string messageLine(const std::string& text);
