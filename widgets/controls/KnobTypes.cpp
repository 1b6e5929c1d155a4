// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/KnobTypes.h"

#include <array>
#include <cstddef>

namespace {

using Shape = KnobLook::Shape;

const juce::Colour light{196, 198, 200};
const juce::Colour medium{126, 128, 132};
const juce::Colour dark{62, 64, 67};
const juce::Colour black{30, 31, 33};

} // namespace

const KnobType& KnobTypes::get(std::int32_t type) {
    constexpr const char* brushed = "knob_array_brushed.webp";
    constexpr const char* pointer = "qm_knob_70_black_128.webp";
    // clang-format off
    static const std::array<KnobType, 12> types{{
        // image                      frames keeps  black  drawn
        {nullptr,                       0,   false, false, {Shape::flat,    dark}},   // -1
        {"knobs_alpha_128.webp",        270, false, false, {Shape::knurled, medium}}, // 0
        {"knob_array_light.webp",       271, false, false, {Shape::knurled, light}},
        {"knob_array_dark.webp",        271, false, false, {Shape::knurled, dark}},
        {nullptr,                       271, true,  false, {Shape::smooth,  medium}}, // 3
        {brushed,                       271, false, false, {Shape::smooth,  light}},
        {brushed,                       271, false, false, {Shape::smooth,  light}},
        {"medium_knob_array_dark.webp", 271, false, false, {Shape::smooth,  dark}},   // 6
        {"medium_knob_array.webp",      271, false, false, {Shape::smooth,  medium}},
        {pointer,                       271, false, false, {Shape::pointer, black}},  // 8
        {pointer,                       271, false, true,  {Shape::pointer, black}},
        {"medium_knob_array.webp",      271, false, false, {Shape::knurled, medium}}, // 10
    }};
    // clang-format on
    return types[static_cast<std::size_t>(limited(type) - none)];
}
