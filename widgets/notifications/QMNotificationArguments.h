// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers of notifications, and what may go with one.
#pragma once

#include <cstdint>

/// Any number; each centre's users choose their own.
using QMNotificationID = std::uint64_t;

/// A parameter and its value, plain units.
struct QMNotificationArguments {
    std::int32_t index = 0;
    double value = 0.0;
};
