// SPDX-License-Identifier: GPL-3.0-or-later
// What the system has to offer for putting a new file in the place of an old one in a single step,
// so that whoever looks finds the one or the other, whole. One body per system.
#pragma once

#include <cstdio>
#include <filesystem>

namespace FileReplacement {

enum class Answer {
    Done,
    Refused, ///< the folder does not allow it: try without
    Failed,  ///< no room, no such folder, a fault of the medium
};

/// The file behind a path, links followed, whether it exists or not. [message thread]
[[nodiscard]] std::filesystem::path resolveLinks(const std::filesystem::path& path);

/// Whether a file may be written: not when all are forbidden to, even for a user whom nothing is
/// forbidden. [message thread]
[[nodiscard]] bool isMeantToBeWritten(const std::filesystem::path& file);

/// Null when the file cannot be opened for reading and writing. [message thread]
[[nodiscard]] std::FILE* openForUpdate(const std::filesystem::path& file);

/// Makes a file of that name that was not there, and opens it for writing. [message thread]
Answer create(const std::filesystem::path& path, std::FILE*& file);

/// Gives the new file owner, group and permissions of the one whose place it is to take. Refused
/// when that cannot be. [message thread]
Answer copyRights(std::FILE* newFile, const std::filesystem::path& oldFile);

/// Writes out everything written so far, down to the medium. True on success. [message thread]
bool flushToMedium(std::FILE* file);

/// Puts a new file in the place of another, or in an empty one. [message thread]
Answer replace(const std::filesystem::path& newFile, const std::filesystem::path& oldFile);

/// Brings the names in a folder down to the medium as far as the system can. [message thread]
void flushFolderToMedium(const std::filesystem::path& folder);

} // namespace FileReplacement
