// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/Log.h"

#include <algorithm>
#include <array>
#include <string>

namespace QM {

LogFile& processLog() {
    static LogFile log("NoxConsole3d.log");
    return log;
}

void log(std::uint32_t level, const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    processLog().writeList(level, format, arguments);
    va_end(arguments);
}

void dumpPacket(LogFile& log, const void* data, std::uint64_t length) {
    constexpr std::uint64_t bytesPerLine = 16;
    const auto* bytes = static_cast<const unsigned char*>(data);
    log.write(LogLevel::packet, "Packet Len: %d\n", static_cast<int>(length));
    log.suppressTimestamps();
    for (std::uint64_t offset = 0; offset < length; offset += bytesPerLine) {
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "%04x: ", static_cast<unsigned>(offset));
        std::string line = text.data();
        for (std::uint64_t i = offset; i < std::min(offset + bytesPerLine, length); ++i) {
            std::snprintf(text.data(), text.size(), "%02x ", bytes[i]);
            line += text.data();
        }
        log.write(LogLevel::packet, "%s\n", line.c_str());
    }
    log.resumeTimestamps();
    log.write(LogLevel::packet, "\n");
}

} // namespace QM
