// SPDX-License-Identifier: GPL-3.0-or-later
// The log: one printf-style function for errors and diagnostic traces. Only levels up to 1 reach
// the file; traces stay in the code for the day somebody raises the level in a debugger.
//
// Any thread but the audio thread may log. The prefix and the message are two separate writes, so
// lines of concurrent messages may mix; each write is whole.
#pragma once

#include "services/LogFile.h"

#include <cstddef>
#include <cstdint>

namespace QM {

namespace LogLevel {
constexpr std::uint32_t error = 1;  ///< errors and a few important events
constexpr std::uint32_t packet = 3; ///< packet dumps
constexpr std::uint32_t trace = 4;  ///< verbose
} // namespace LogLevel

/// The process's log, "NoxConsole3d.log" in the current directory. [any thread but audio]
LogFile& processLog();

/// Writes a message, which carries its own line ends, when its level (low 8 bits) is at most the
/// log's. [any thread but audio]
[[gnu::format(gnu_printf, 2, 3)]] void log(std::uint32_t level, const char* format, ...);

/// Writes length bytes as lines of sixteen in hexadecimal, at the packet level.
/// [any thread but audio]
void dumpPacket(LogFile& log, const void* data, std::uint64_t length);

} // namespace QM
