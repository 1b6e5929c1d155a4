// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of the items of the group "UI Preferences". With the product code in front they are in the
// users' files, so none may ever change.
#pragma once

namespace AppearanceKeys {

inline constexpr const char* textColour = "text_color";
inline constexpr const char* background = "background";
inline constexpr const char* baseColour = "base_color";
inline constexpr const char* topBrightness = "top_brightness";
inline constexpr const char* bottomBrightness = "bot_brightness";
inline constexpr const char* showBevels = "show_bevels";
inline constexpr const char* knobType = "knob_type";
inline constexpr const char* showRings = "show_rings";
inline constexpr const char* ringWidth = "ring_width";

} // namespace AppearanceKeys
