// SPDX-License-Identifier: GPL-3.0-or-later
// The stream in which a host keeps a plug-in's state, as the envelopes see it. Each adapter wraps
// what its interface offers; tests and the command line have one in memory.
#pragma once

#include <cstddef>
#include <cstdint>

class IStateByteStream {
public:
    virtual ~IStateByteStream() = default;

    /// Reads at most size bytes from the position on and moves it behind them. Answers how many;
    /// 0 at the end and when nothing can be read. [message thread]
    [[nodiscard]] virtual std::size_t read(std::size_t size, void* destination) = 0;
    /// Writes at the position and moves it behind what was written. Answers how many bytes the
    /// stream took. [message thread]
    [[nodiscard]] virtual std::size_t write(std::size_t size, const void* bytes) = 0;

    /// Bytes from the beginning; negative when the stream cannot tell. [message thread]
    [[nodiscard]] virtual std::int64_t tell() const = 0;
    /// False, and the position stays, when the stream cannot go there. [message thread]
    virtual bool seek(std::int64_t position) = 0;
};
