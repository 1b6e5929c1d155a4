// SPDX-License-Identifier: GPL-3.0-or-later
// A file in the temporary folder to write to and read back, removed at the end; and a capture of
// the process's log in one.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace parameterTest {

class TemporaryFile {
public:
    TemporaryFile();
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Open for binary writing; never null.
    [[nodiscard]] std::FILE* stream() const { return file; }

    /// Everything written so far, byte for byte.
    [[nodiscard]] std::string text() const;

private:
    std::filesystem::path path;
    std::FILE* file;
};

/// While it lives, what the process's log takes up to a level is collected, without time stamps.
class LogCapture {
public:
    explicit LogCapture(std::uint32_t maximumLevel);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    [[nodiscard]] std::string text() const { return file.text(); }

private:
    TemporaryFile file;
    std::uint32_t levelBefore;
};

} // namespace parameterTest
