// SPDX-License-Identifier: GPL-3.0-or-later
// A record's bytes in memory, on their way into or out of a host's project.
#pragma once

#include "presets/record/QMGenericPresetStream.h"

#include <cstdlib>
#include <memory>
#include <span>

class MemoryStream : public QMGenericPresetStream {
public:
    /// Empty, for writing. The capacity (bytes) grows with what is written.
    explicit MemoryStream(std::int32_t initialCapacity);
    /// Over a copy of bytes, for reading. Not open when they are more than a stream can hold or
    /// there is no memory for the copy.
    explicit MemoryStream(std::span<const std::byte> bytes);

    [[nodiscard]] bool isOpen() const override { return buffer != nullptr; }

    /// Appends, wherever the read position is. Nothing is written when memory runs out.
    [[nodiscard]] bool write(std::int32_t size, const void* bytes) override;
    /// Copies all or nothing.
    [[nodiscard]] bool read(std::int32_t size, void* destination) override;

    /// The read position.
    [[nodiscard]] std::int32_t tell() const override { return position; }

    [[nodiscard]] std::int32_t size() const override { return length; }

    std::int32_t seek(std::int32_t newPosition) override;

    [[nodiscard]] std::int32_t capacity() const { return capacity_; }

    /// What was written; valid until the next write.
    [[nodiscard]] std::span<const std::byte> bytes() const;

private:
    struct Release {
        void operator()(std::byte* memory) const { std::free(memory); }
    };

    using Buffer = std::unique_ptr<std::byte, Release>;

    /// A capacity in bytes; the capacity stays as it is when there is no memory.
    void growTo(std::int64_t wanted);

    Buffer buffer;
    std::int32_t capacity_ = 0;
    std::int32_t length = 0;
    std::int32_t position = 0;
};
