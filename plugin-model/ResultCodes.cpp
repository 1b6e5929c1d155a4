// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/ResultCodes.h"

const char* noxResultText(NoxResult code) {
    using namespace NoxResultCode;
    // clang-format off
    switch (code) {
    case noError:                      return "No Error";
    case invalidString:                return "Invalid String";
    case noSuchPlugIn:                 return "No Such Plug In";
    case notEnoughCycles:              return "Not enough cycles available on remote host";
    case notEnoughRemoteMemory:        return "Not enough memory available on remote host";
    case notEnoughMemory:              return "Not enough memory available";
    case noHostAvailable:              return "No host available";
    case notEnoughSlots:               return "No enough slots available on remote host";
    case isaNotSupported:              return "ISA of remote host not supported by plugin";
    case instanceNotFound:             return "Plugin Instance not found";
    case plugInDamaged:                return "Plugin is damaged and DSP code was not found";
    case unsupportedIOConfiguration:   return "Unsupported I/O Configuration for Plugin";
    case invalidGraph:                 return "Attempt to instantiate plugin on an invalid Graph";
    case processMethodUnsupported:     return "Host Process Method Unsupported";
    case boxOffline:                   return "Box is Offline";
    case driverPacketTooLarge:         return "Nox Driver Error: Packet too large";
    case driverOutOfMemory:            return "Nox Driver Error: Out of Memory";
    case driverInvalidParameter:       return "Nox Driver Error: Invalid Parameter";
    case driverNoDevice:               return "Nox Driver Error: No Device Available";
    case driverInvalidFirmwareCommand: return "Nox Driver Error: Invalid Firmware Command";
    case driverInvalidSampleRate:      return "Nox Driver Error: Invalid Sample Rate";
    case driverPermission:             return "Nox Driver Error: Permission Error";
    default:                           return "Unknown Error";
    }
    // clang-format on
}
