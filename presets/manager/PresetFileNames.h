// SPDX-License-Identifier: GPL-3.0-or-later
// The names of preset files and folders: those on disk and those that users type.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace PresetFileNames {

constexpr std::string_view extension = ".qmpreset";

/// What a preset is called whose file has that name: everything before the first ".qmpreset", or
/// the whole name. [any thread]
[[nodiscard]] std::string displayNameOf(std::string_view fileName);

/// Whether a user's text can be the name of a file or folder. Refused is what would lead elsewhere
/// (separators, "." and "..", a null character) or what the system takes for something else (on
/// Windows devices, streams of a file, endings it drops). Too long a name is refused when the file
/// is made. [any thread]
[[nodiscard]] bool isUsable(std::string_view name);

/// Name for a file that is written beside another one to take its place; short, so that it fits
/// wherever that one's does. [any thread]
[[nodiscard]] std::string temporary(std::uint64_t number);

/// Whether a name is one of these: what a process leaves that is killed at the wrong moment.
/// [any thread]
[[nodiscard]] bool isTemporary(std::string_view fileName);

} // namespace PresetFileNames
