// SPDX-License-Identifier: GPL-3.0-or-later
//
// Looks at an input file before a library does, which would answer "system error" at best.

#pragma once

#include <filesystem>

/// Throws HostError when the file is missing, no regular file (the tool needs to know how long its
/// inputs are, which a pipe does not tell) or may not be read. [message thread]
void checkInputFile(const std::filesystem::path& file);
