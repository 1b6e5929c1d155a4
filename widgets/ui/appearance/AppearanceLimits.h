// SPDX-License-Identifier: GPL-3.0-or-later
// Defaults of an editor's looks, and what is drawn at most: files hold any number.
#pragma once

#include "services/preferences/PreferenceRange.h"

#include <cstdint>

namespace AppearanceLimits {

// Colours as 0xAARRGGBB.
inline constexpr std::uint32_t defaultTextColour = 0xFF00FF00;
inline constexpr std::uint32_t defaultBaseColour = 0xFF575757;

/// -1: black, 0: the base colour, 1: white.
inline constexpr QM::PreferenceRange brightness{-1.0F, 1.0F};
inline constexpr float defaultTopBrightness = 0.164F;
inline constexpr float defaultBottomBrightness = -0.91F;

/// Design units.
inline constexpr QM::PreferenceRange ringWidth{0.0F, 12.0F};
inline constexpr float defaultRingWidth = 4.0F;

inline constexpr std::int32_t defaultKnobType = 6;

/// What is no number is the range's nearest to 0.
[[nodiscard]] constexpr float limited(float value, const QM::PreferenceRange& range) {
    if (!(value == value))
        value = 0.0F;
    if (value < range.minimum)
        return range.minimum;
    return value > range.maximum ? range.maximum : value;
}

} // namespace AppearanceLimits
