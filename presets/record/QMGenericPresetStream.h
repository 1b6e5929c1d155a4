// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes that settings records are written to and read from: a file or memory. Note the answers
// of write and read: true is failure.
#pragma once

#include <cstdint>

class QMGenericPresetStream {
public:
    QMGenericPresetStream() = default;
    virtual ~QMGenericPresetStream() = default;
    QMGenericPresetStream(const QMGenericPresetStream&) = delete;
    QMGenericPresetStream& operator=(const QMGenericPresetStream&) = delete;

    [[nodiscard]] virtual bool isOpen() const = 0;
    /// True on failure.
    [[nodiscard]] virtual bool write(std::int32_t size, const void* bytes) = 0;
    /// True on failure; what the destination then holds is undefined.
    [[nodiscard]] virtual bool read(std::int32_t size, void* destination) = 0;
    [[nodiscard]] virtual std::int32_t tell() const = 0;
    /// Length of the whole stream in bytes; negative when it cannot be told.
    [[nodiscard]] virtual std::int32_t size() const = 0;
    /// Answers the new position.
    virtual std::int32_t seek(std::int32_t position) = 0;
};
