// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the tool says on standard error: one line at a time, with the program's name in front.

#pragma once

#include <string>

/// The text with question marks in the place of control characters, which names of files and
/// presets may well contain: a line stays a line, and nothing paints on the terminal. [any thread]
std::string printableText(std::string text);

/// Prints "brolt-host: <text>", printable. [message thread]
void printMessage(const std::string& text);

/// The text of printMessage, without its line end. [any thread]
std::string messageLine(const std::string& text);
