// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tables on the terminal, and the same rows for other programs.

#pragma once

#include <string>
#include <vector>

using TextRow = std::vector<std::string>;

/// Columns padded to their longest text and set two blanks apart; the first row is the heading.
/// Widths count characters of UTF-8 text. [any thread]
std::string alignedTable(const std::vector<TextRow>& rows);

/// Cells separated by tabulators, one row a line. [any thread]
std::string tabSeparatedTable(const std::vector<TextRow>& rows);
