// SPDX-License-Identifier: GPL-3.0-or-later
// The picture files that the product's editor is made of.
#pragma once

#include <array>

inline constexpr std::array productPictures{
    "qm_knob_70_black_128.webp", // knobs
    "faderknob.png",
    "oglossywindowleft.png", // readouts
    "oglossywindowmiddle.png",
    "oglossywindowright.png",
    "pushbutton.png",       // enable buttons
    "UI_DIsplayWindow.png", // pitch history
    "UIBackground.png",     // light and dark metal
    "UIBackgroundDark.png",
    "BroltLogoForLight.png",
    "BroltLogoForDark.png",
};
