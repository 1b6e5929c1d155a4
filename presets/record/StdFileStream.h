// SPDX-License-Identifier: GPL-3.0-or-later
// A record's bytes in a file of the C runtime.
#pragma once

#include "presets/record/QMGenericPresetStream.h"

#include <cstdio>
#include <memory>
#include <string>

class StdFileStream : public QMGenericPresetStream {
public:
    /// Takes a handle over and closes it when destroyed; null makes a stream that is not open.
    explicit StdFileStream(std::FILE* handle);
    /// Opens a path (UTF-8) with a mode of fopen. What is not a plain file (a pipe would block, a
    /// device would answer without end) is not opened.
    StdFileStream(const std::string& path, const char* mode);

    [[nodiscard]] bool isOpen() const override { return file != nullptr; }

    [[nodiscard]] bool write(std::int32_t size, const void* bytes) override;
    [[nodiscard]] bool read(std::int32_t size, void* destination) override;
    [[nodiscard]] std::int32_t tell() const override;
    /// Seeks to the end and back. -1 for a file beyond the reach of 32 bits.
    [[nodiscard]] std::int32_t size() const override;
    std::int32_t seek(std::int32_t position) override;

    /// Writes out what the C runtime still holds back and closes. True on failure, also when an
    /// earlier write failed.
    [[nodiscard]] bool close();

private:
    struct Close {
        void operator()(std::FILE* handle) const { std::fclose(handle); }
    };

    std::unique_ptr<std::FILE, Close> file;
};
