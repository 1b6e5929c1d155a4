// SPDX-License-Identifier: GPL-3.0-or-later
//
// The hand-over of coefficient records to the audio thread, without the record's type.
//
// A plug-in instance pushes payloads of packets, of which it knows no more than the length.

#pragma once

#include <cstddef>
#include <cstdint>

/// For one writing and one reading thread. Nothing here blocks, allocates or fails.
class QMCoefficientQueueInterface {
public:
    QMCoefficientQueueInterface() = default;
    virtual ~QMCoefficientQueueInterface() = default;

    QMCoefficientQueueInterface(const QMCoefficientQueueInterface&) = delete;
    QMCoefficientQueueInterface& operator=(const QMCoefficientQueueInterface&) = delete;

    /// The record to use for this block: the next pending one, which is thereby consumed, or when
    /// none is pending the one used last. Call it once a block. The answer is never null and stays
    /// as it is until the next call. [audio thread]
    virtual const void* current() noexcept = 0;

    /// Appends a copy of `record` (recordSize() bytes, any alignment). When three are pending, it
    /// replaces the newest of them. [writer thread]
    virtual void push(const void* record) noexcept = 0;

    /// Drops every pending record. The next current() answers the newest record ever pushed (a
    /// default record if there was none). For a moment in which no block runs. Answers the read
    /// index reached. [message thread]
    virtual int32_t discardPending() noexcept = 0;

    /// Bytes. [any thread]
    [[nodiscard]] virtual std::size_t recordSize() const noexcept = 0;
};
