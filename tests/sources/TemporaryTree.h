// SPDX-License-Identifier: GPL-3.0-or-later
//
// A temporary folder with files in it, in which a test plants the mistakes a check has to find.

#pragma once

#include <filesystem>
#include <string>

class TemporaryTree {
public:
    // Makes an empty folder of its own below the system's temporary folder.
    // Throws std::filesystem::filesystem_error where that fails. [any thread]
    TemporaryTree();

    // Removes the folder with everything in it. [any thread]
    ~TemporaryTree();

    TemporaryTree(const TemporaryTree&) = delete;
    TemporaryTree& operator=(const TemporaryTree&) = delete;

    // The folder, absolute. [any thread]
    const std::filesystem::path& root() const { return root_; }

    // Writes `text` to the file at `path` (relative to the root), folders on the way included.
    // [any thread]
    void write(const std::string& path, const std::string& text) const;

private:
    std::filesystem::path root_;
};
