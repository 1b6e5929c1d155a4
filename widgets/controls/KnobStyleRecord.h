// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing options of one knob in a product's table of widgets.
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <cstdint>

struct KnobStyleRecord final : QMWidgetStyleRecord {
    enum Present : std::uint32_t {
        hasKnobType = 1u << 0,
        hasStyleOption = 1u << 1,
        hasColour = 1u << 2,
        hasStyleValue1 = 1u << 3,
        hasStyleValue2 = 1u << 4,
        hasStyleOption2 = 1u << 5,
        hasTaperMode = 1u << 6
    };

    std::int32_t knobType = 7;    ///< see KnobTypes
    std::int32_t styleOption = 3; ///< where the label is: 1 below, 2 above, else nowhere
    std::uint32_t red = 0;        ///< accent colour, 0 to 255 each
    std::uint32_t green = 255;
    std::uint32_t blue = 0;
    std::uint32_t alpha = 255;
    float styleValue1 = 0.1f;      ///< the second value of ring modes 5 and 7, 0 to 1
    float styleValue2 = 0.01f;     ///< tables have it; no knob is drawn by it
    std::int32_t styleOption2 = 1; ///< ring mode (see KnobRing), 1: no ring
    std::int32_t taperMode = 0;    ///< see ControlTaper; 2 comes with a factor of 1000
    std::uint32_t presentMask = 0; ///< Present; what is not, has its default
};
