// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/LogFile.h"

#include <array>
#include <chrono>
#include <ctime>

namespace QM {
namespace {

std::tm localTime(std::time_t seconds) {
    std::tm fields{};
#ifdef _WIN32
    localtime_s(&fields, &seconds);
#else
    localtime_r(&seconds, &fields);
#endif
    return fields;
}

/// "2026-11-21 10:15:30.000123: "
std::string timePrefix() {
    using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    constexpr std::int64_t ticksPerSecond = 10'000'000;
    constexpr std::int64_t ticksPerMicrosecond = 10;
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const std::int64_t ticks = std::chrono::duration_cast<Ticks>(sinceEpoch).count();

    const std::tm fields = localTime(static_cast<std::time_t>(ticks / ticksPerSecond));
    std::array<char, 128> seconds{};
    std::strftime(seconds.data(), seconds.size(), "%Y-%m-%d %H:%M:%S", &fields);
    std::array<char, 160> prefix{};
    std::snprintf(prefix.data(), prefix.size(), "%s.%06d: ", seconds.data(),
                  static_cast<int>(ticks % ticksPerSecond / ticksPerMicrosecond));
    return prefix.data();
}

[[gnu::format(gnu_printf, 3, 0)]] void writeLine(std::FILE* out, const std::string& prefix,
                                                 const char* format, std::va_list arguments) {
    if (!prefix.empty())
        std::fputs(prefix.c_str(), out);
    std::va_list copy;
    va_copy(copy, arguments);
    std::vfprintf(out, format, copy);
    va_end(copy);
}

} // namespace

LogFile::LogFile(std::string filePath)
    : path(std::move(filePath)) {}

LogFile::~LogFile() {
    if (file != nullptr)
        std::fclose(file);
}

std::FILE* LogFile::openedFile() {
    std::call_once(opening, [this] {
        file = std::fopen(path.c_str(), "w");
        if (file == nullptr)
            std::perror("Opening Log File");
    });
    return file;
}

void LogFile::write(std::uint32_t level, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    writeList(level, format, arguments);
    va_end(arguments);
}

void LogFile::writeList(std::uint32_t level, const char* format, std::va_list arguments) {
    constexpr std::uint32_t levelBits = 0xFF;
    if ((level & levelBits) > maximumLevel.load())
        return;
    std::FILE* out = openedFile();
    const std::string prefix = timestampSuppression.load() == 0 ? timePrefix() : std::string();
    if (out != nullptr)
        writeLine(out, prefix, format, arguments);
    {
        const std::lock_guard<std::recursive_mutex> guard(lock);
        if (secondSink != nullptr && (secondSinkMask == 0 || (secondSinkMask & level) != 0))
            writeLine(secondSink, prefix, format, arguments);
    }
    logged.store(true);
}

void LogFile::setSecondSink(std::FILE* sink, std::uint32_t mask) {
    const std::lock_guard<std::recursive_mutex> guard(lock);
    secondSink = sink;
    secondSinkMask = mask;
}

} // namespace QM
