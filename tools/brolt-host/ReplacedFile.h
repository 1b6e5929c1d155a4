// SPDX-License-Identifier: GPL-3.0-or-later
//
// A file that appears under its name only when it is complete. It is written under another name in
// the same folder and renamed at the end, so whoever looks sees the old file or the new one, and
// an input may be its own output.

#pragma once

#include <filesystem>

class ReplacedFile {
public:
    /// Makes an empty file with a name of its own in the target's folder. Where the target is a
    /// link, the file it leads to is meant. Throws HostError when the folder is missing or cannot
    /// be written, or when the target exists and is a folder, a device or write-protected.
    explicit ReplacedFile(const std::filesystem::path& target);

    /// Removes the temporary file unless it took the target's place.
    ~ReplacedFile();

    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// Where to write until commit. [message thread]
    [[nodiscard]] const std::filesystem::path& temporaryPath() const { return temporary; }

    /// The target as the user gave it, for messages. [message thread]
    [[nodiscard]] const std::filesystem::path& target() const { return givenTarget; }

    /// Puts the file in the target's place, with the permissions of the file that was there. The
    /// writer must have closed it. Throws HostError when the system refuses. [message thread]
    void commit();

private:
    std::filesystem::path givenTarget;
    std::filesystem::path finalPath;
    std::filesystem::path temporary;
    bool committed = false;
};
