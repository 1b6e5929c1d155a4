// SPDX-License-Identifier: GPL-3.0-or-later
// What tells a file or folder from others, whatever way leads to it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

/// Volume and number on the volume.
using FileIdentity = std::pair<std::uint64_t, std::uint64_t>;

/// Links are followed (path in UTF-8). Nothing for what cannot be looked at. [any thread]
[[nodiscard]] std::optional<FileIdentity> fileIdentity(const std::string& path);
