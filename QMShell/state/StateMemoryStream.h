// SPDX-License-Identifier: GPL-3.0-or-later
// A state stream in memory: for state that comes from a file rather than from a host, and for
// tests.
#pragma once

#include "QMShell/state/IStateByteStream.h"

#include <span>
#include <vector>

class StateMemoryStream : public IStateByteStream {
public:
    StateMemoryStream() = default;

    /// Over a copy of bytes, at their beginning.
    explicit StateMemoryStream(std::span<const std::byte> bytes)
        : data(bytes.begin(), bytes.end()) {}

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override;
    /// Replaces what lies at the position and lengthens the stream where that is not enough.
    [[nodiscard]] std::size_t write(std::size_t size, const void* bytes) override;
    [[nodiscard]] std::int64_t tell() const override;
    /// Within the stream, its end included.
    bool seek(std::int64_t newPosition) override;

    [[nodiscard]] const std::vector<std::byte>& bytes() const { return data; }

private:
    std::vector<std::byte> data;
    std::size_t position = 0;
};
