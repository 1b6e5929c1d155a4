// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finds WAV and AIFF files that were cut off. The sound file library takes what is left for the
// whole, which would make a half render out of a half copied file without a word.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// What is wrong, if the file's audio chunk announces more bytes than the file has left. Nothing
/// for whole files, for files of other kinds and for those of programs that could not tell the
/// length while they wrote (they leave 0 or a number beyond all measure). [message thread]
std::optional<std::string> truncationOf(const std::filesystem::path& file);
