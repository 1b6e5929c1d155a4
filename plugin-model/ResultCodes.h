// SPDX-License-Identifier: GPL-3.0-or-later
// The result codes that the plug-in model's operations answer instead of throwing: they cross to
// hosts and drivers, so their numbers are fixed.
#pragma once

#include <cstdint>

using NoxResult = std::int32_t;

namespace NoxResultCode {
constexpr NoxResult noError = 0;
constexpr NoxResult invalidString = 1;
constexpr NoxResult noSuchPlugIn = 2;
constexpr NoxResult notEnoughCycles = 3;
constexpr NoxResult notEnoughRemoteMemory = 4;
constexpr NoxResult notEnoughMemory = 5;
constexpr NoxResult noHostAvailable = 6;
constexpr NoxResult notEnoughSlots = 7;
constexpr NoxResult isaNotSupported = 8;
constexpr NoxResult instanceNotFound = 9;
constexpr NoxResult plugInDamaged = 10;
constexpr NoxResult unsupportedIOConfiguration = 11;
constexpr NoxResult invalidGraph = 12;
constexpr NoxResult processMethodUnsupported = 13;
constexpr NoxResult boxOffline = 15;
constexpr NoxResult driverPacketTooLarge = -2006;
constexpr NoxResult driverOutOfMemory = -2005;
constexpr NoxResult driverInvalidParameter = -2004;
constexpr NoxResult driverNoDevice = -2003;
constexpr NoxResult driverInvalidFirmwareCommand = -2002;
constexpr NoxResult driverInvalidSampleRate = -2001;
constexpr NoxResult driverPermission = -2000;
} // namespace NoxResultCode

/// The text of a result code; "Unknown Error" for a number that is not in the list.
/// The text is static. [any thread]
const char* noxResultText(NoxResult code);
