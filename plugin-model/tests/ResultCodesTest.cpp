// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers and texts of the result codes.
#include "plugin-model/ResultCodes.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <utility>

namespace {

using Row = std::pair<NoxResult, const char*>;

// clang-format off
constexpr std::array<Row, 22> texts{{
    {0,     "No Error"},
    {1,     "Invalid String"},
    {2,     "No Such Plug In"},
    {3,     "Not enough cycles available on remote host"},
    {4,     "Not enough memory available on remote host"},
    {5,     "Not enough memory available"},
    {6,     "No host available"},
    {7,     "No enough slots available on remote host"},
    {8,     "ISA of remote host not supported by plugin"},
    {9,     "Plugin Instance not found"},
    {10,    "Plugin is damaged and DSP code was not found"},
    {11,    "Unsupported I/O Configuration for Plugin"},
    {12,    "Attempt to instantiate plugin on an invalid Graph"},
    {13,    "Host Process Method Unsupported"},
    {15,    "Box is Offline"},
    {-2006, "Nox Driver Error: Packet too large"},
    {-2005, "Nox Driver Error: Out of Memory"},
    {-2004, "Nox Driver Error: Invalid Parameter"},
    {-2003, "Nox Driver Error: No Device Available"},
    {-2002, "Nox Driver Error: Invalid Firmware Command"},
    {-2001, "Nox Driver Error: Invalid Sample Rate"},
    {-2000, "Nox Driver Error: Permission Error"},
}};

constexpr std::array<std::pair<NoxResult, NoxResult>, 22> numbers{{
    {NoxResultCode::noError, 0},
    {NoxResultCode::invalidString, 1},
    {NoxResultCode::noSuchPlugIn, 2},
    {NoxResultCode::notEnoughCycles, 3},
    {NoxResultCode::notEnoughRemoteMemory, 4},
    {NoxResultCode::notEnoughMemory, 5},
    {NoxResultCode::noHostAvailable, 6},
    {NoxResultCode::notEnoughSlots, 7},
    {NoxResultCode::isaNotSupported, 8},
    {NoxResultCode::instanceNotFound, 9},
    {NoxResultCode::plugInDamaged, 10},
    {NoxResultCode::unsupportedIOConfiguration, 11},
    {NoxResultCode::invalidGraph, 12},
    {NoxResultCode::processMethodUnsupported, 13},
    {NoxResultCode::boxOffline, 15},
    {NoxResultCode::driverPacketTooLarge, -2006},
    {NoxResultCode::driverOutOfMemory, -2005},
    {NoxResultCode::driverInvalidParameter, -2004},
    {NoxResultCode::driverNoDevice, -2003},
    {NoxResultCode::driverInvalidFirmwareCommand, -2002},
    {NoxResultCode::driverInvalidSampleRate, -2001},
    {NoxResultCode::driverPermission, -2000},
}};
// clang-format on

} // namespace

TEST(ResultCodes, everyCodeHasItsText) {
    for (const auto& [code, text] : texts)
        EXPECT_STREQ(noxResultText(code), text) << code;
}

TEST(ResultCodes, everyNameHasItsNumber) {
    for (const auto& [name, number] : numbers)
        EXPECT_EQ(name, number);
}

TEST(ResultCodes, anyOtherNumberIsAnUnknownError) {
    constexpr NoxResult least = std::numeric_limits<NoxResult>::min();
    constexpr NoxResult greatest = std::numeric_limits<NoxResult>::max();
    for (const NoxResult code : {14, 16, -1, -1999, -2007, 1000, least, greatest})
        EXPECT_STREQ(noxResultText(code), "Unknown Error") << code;
}
