// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where this program is, for what lies beside it.

#pragma once

#include <filesystem>

/// The program's own file, however it was called; the empty path when the system does not tell.
/// [any thread]
std::filesystem::path programPath();
