// SPDX-License-Identifier: GPL-3.0-or-later
// One log file, opened on the first message that passes the level test, each line prefixed with
// the local time in microseconds, and an optional second sink.
#pragma once

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <mutex>
#include <string>

namespace QM {

class LogFile {
public:
    /// Nothing is opened yet. A relative path is taken from the directory that is current when the
    /// first message passes.
    explicit LogFile(std::string path);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    /// The first message that passes truncates an existing file. When the file cannot be opened
    /// that is said once on standard error, and messages go to the second sink only.
    /// [any thread but audio]
    [[gnu::format(gnu_printf, 3, 4)]] void write(std::uint32_t level, const char* format, ...);
    [[gnu::format(gnu_printf, 3, 0)]] void writeList(std::uint32_t level, const char* format,
                                                     std::va_list arguments);

    /// While suppressed (the calls count), messages get no time prefix. [any thread]
    void suppressTimestamps() { timestampSuppression.fetch_add(1); }

    void resumeTimestamps() { timestampSuppression.fetch_sub(1); }

    /// Messages with a greater level are dropped. Starts at 1. [any thread]
    void setMaximumLevel(std::uint32_t level) { maximumLevel.store(level); }

    [[nodiscard]] std::uint32_t level() const { return maximumLevel.load(); }

    /// A further output (not owned, null for none). Mask 0 takes every level; otherwise the level
    /// must share a bit with it. [any thread]
    void setSecondSink(std::FILE* sink, std::uint32_t mask);

    /// True once a message has passed the level test. [any thread]
    [[nodiscard]] bool hasLogged() const { return logged.load(); }

private:
    std::FILE* openedFile();

    const std::string path;
    std::atomic<std::uint32_t> maximumLevel{1};
    std::once_flag opening;
    std::FILE* file = nullptr;
    std::atomic<std::int32_t> timestampSuppression{0};
    std::recursive_mutex lock; ///< guards the second sink
    std::FILE* secondSink = nullptr;
    std::uint32_t secondSinkMask = 0;
    std::atomic<bool> logged{false};
};

} // namespace QM
