// SPDX-License-Identifier: GPL-3.0-or-later
// What tests of log lines need: the lines that a log, raised to a level for the test, sends to its
// second sink, and the prefix that each line carries.
#pragma once

#include "services/Log.h"
#include "services/tests/TemporaryDirectory.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <regex>
#include <string>

/// "2026-11-21 10:15:30.000123: "
inline const char* const logPrefixPattern = R"(\d{4}-\d{2}-\d{2} \d{2}:\d{2}:\d{2}\.\d{6}: )";

/// The text with every time prefix taken out.
inline std::string withoutLogPrefixes(const std::string& text) {
    return std::regex_replace(text, std::regex(logPrefixPattern), "");
}

/// A text as printf makes it, for lines with addresses, which platforms write differently.
[[gnu::format(gnu_printf, 1, 2)]] inline std::string printed(const char* format, ...) {
    std::array<char, 1024> text{};
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    return text.data();
}

/// The second sink and the level of a log (the process's without an argument), both given back at
/// the end of the scope. Bytes are kept as written: no platform's line ends.
class LogCapture {
public:
    explicit LogCapture(std::uint32_t maximumLevel = QM::LogLevel::trace,
                        QM::LogFile& capturedLog = QM::processLog(), std::uint32_t mask = 0)
        : log(capturedLog)
        , levelBefore(capturedLog.level())
        , file(std::fopen((directory / "captured.log").string().c_str(), "w+b")) {
        log.setMaximumLevel(maximumLevel);
        log.setSecondSink(file, mask);
    }

    ~LogCapture() {
        log.setSecondSink(nullptr, 0);
        log.setMaximumLevel(levelBefore);
        if (file != nullptr)
            std::fclose(file);
    }

    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// Everything so far, prefixes included.
    [[nodiscard]] std::string text() const {
        std::string result;
        if (file == nullptr)
            return "(no capture file)";
        std::rewind(file);
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
            result += static_cast<char>(c);
        std::fseek(file, 0, SEEK_END);
        return result;
    }

    /// Everything so far, prefixes taken out.
    [[nodiscard]] std::string messages() const { return withoutLogPrefixes(text()); }

private:
    TemporaryDirectory directory;
    QM::LogFile& log;
    std::uint32_t levelBefore;
    std::FILE* file;
};
