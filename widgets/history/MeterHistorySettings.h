// SPDX-License-Identifier: GPL-3.0-or-later
// How a meter history shows its levels, and what a new one begins with: what the user has saved as
// the default. [message thread]
#pragma once

#include <array>

struct MeterHistorySettings {
    /// dB above and below 0.
    static constexpr std::array<int, 5> gainRanges{3, 6, 12, 24, 36};

    int gainRange = 24; ///< one of the above
    bool includeOutputGain = false;
    bool autoSensitivity = false;
};

/// A range that is none of those there are is the default's.
[[nodiscard]] MeterHistorySettings readMeterHistorySettings();
/// Saved by the preferences' timer.
void writeMeterHistorySettings(const MeterHistorySettings& settings);
