// SPDX-License-Identifier: GPL-3.0-or-later
// Banks as the VST 2 interface publishes them: what hosts keep of a VST 2 plug-in, and hand to the
// plug-in that took its place. All numbers are big-endian:
//
//   optionally: 'VstW', size, version, bypass                        u32, int32 each
//   'CcnK', size, kind, version, plug-in, its version, programs      u32 or int32 each
//   current program, in version 2; reserved before                   int32
//   reserved                                                         124 bytes
//   kind 'FBCh': size of the chunk, the chunk                        int32, bytes
//   kind 'FxBk': each program:
//     'CcnK', size, kind, version, plug-in, its version, parameters  u32 or int32 each
//     name                                                           28 bytes
//     kind 'FxCk': value of each parameter                           f32...
//     kind 'FPCh': size of the chunk, the chunk                      int32, bytes
//
// The sizes behind 'CcnK' and 'VstW' are written wrong by hosts in the field, so nobody goes by
// them.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

struct Vst2Program {
    std::string name; ///< as stored, up to its first zero byte
    FourCharCode plugIn = 0;
    std::int32_t plugInVersion = 0;
    std::vector<float> values;        ///< 0 to 1; none in an opaque program
    std::span<const std::byte> chunk; ///< empty unless the program is opaque
};

struct Vst2Bank {
    std::optional<bool> bypassed; ///< where the wrapper tells it
    FourCharCode plugIn = 0;
    std::int32_t plugInVersion = 0;
    std::int32_t programCount = 0;
    std::optional<std::int32_t> currentProgram; ///< where the version tells it
    std::vector<Vst2Program> programs;          ///< none in an opaque bank
    std::span<const std::byte> chunk;           ///< empty unless the bank is opaque
};

/// Whether bytes may begin a bank at all, by the first four of them. [any thread]
[[nodiscard]] bool mayBeginVst2Bank(std::span<const std::byte> bytes);

/// Reads the bank at the beginning of bytes, which its spans point into; what follows it is left
/// alone. Nothing when it is not whole, has no program, or is another plug-in's than the one
/// expected. [any thread]
[[nodiscard]] std::optional<Vst2Bank>
parseVst2Bank(std::span<const std::byte> bytes,
              std::optional<FourCharCode> expectedPlugIn = std::nullopt);
