// SPDX-License-Identifier: GPL-3.0-or-later
// Runtime architecture numbers: what kind of processing host an instance runs on. The number
// selects the coefficient flusher, the I/O connection controller and the DSP object file.
#pragma once

#include <cstdint>

using NoxRuntimeArchitecture = std::int32_t;

namespace NoxArchitecture {
constexpr NoxRuntimeArchitecture sharc = 1;
constexpr NoxRuntimeArchitecture sharcSecond = 9;
constexpr NoxRuntimeArchitecture dspMac = 10; ///< object files end in "_mac.dspobj"
constexpr NoxRuntimeArchitecture dsp3d = 11;  ///< object files end in "_3d.dspobj"
constexpr NoxRuntimeArchitecture dspThird = 12;
constexpr NoxRuntimeArchitecture native = 13;            ///< in process
constexpr NoxRuntimeArchitecture nativeUndelivered = 14; ///< records go nowhere
} // namespace NoxArchitecture
