// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the program tells its caller at the end.

#pragma once

namespace ExitStatus {

constexpr int success = 0;
constexpr int internalFailure = 1; ///< not the input's fault: out of memory, say
constexpr int badInput = 2;
constexpr int signalBase = 128; ///< plus the signal's number, as shells count it

} // namespace ExitStatus
