// SPDX-License-Identifier: GPL-3.0-or-later
// A file written beside another one to take its place. As long as it has not, it goes again with
// its object; what a killed process leaves has a name that scans pass over.
#pragma once

#include "presets/manager/FileReplacement.h"

#include <cstddef>
#include <memory>
#include <span>

class ReplacementFile {
public:
    using Answer = FileReplacement::Answer;

    explicit ReplacementFile(std::filesystem::path toReplace);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// Comes before everything else. [message thread]
    [[nodiscard]] Answer create();
    /// Takes over owner and permissions of the target, which has to exist. [message thread]
    [[nodiscard]] Answer copyRights();
    /// Appends. [message thread]
    [[nodiscard]] Answer write(std::span<const std::byte> bytes);
    /// No more can be written after it. [message thread]
    [[nodiscard]] Answer close(bool flushToMedium);
    /// Comes last. [message thread]
    [[nodiscard]] Answer replaceTarget();

private:
    struct Close {
        void operator()(std::FILE* handle) const { std::fclose(handle); }
    };

    std::filesystem::path target;
    std::filesystem::path path; ///< empty while there is no file
    std::unique_ptr<std::FILE, Close> file;
};
