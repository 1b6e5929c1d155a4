// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whether a preset file is whole. The plug-in reads what it can of a cut-off preset, so that a
// session opens; who works with files wants to know.

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

/// What is wrong with the bytes of a preset file, for behind its name; nothing when it is whole.
/// [any thread]
std::optional<std::string> presetDamage(std::span<const std::byte> bytes);
