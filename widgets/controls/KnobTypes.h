// SPDX-License-Identifier: GPL-3.0-or-later
// The knobs that a strip can be: which image holds its frames, and how it is drawn where there is
// no such image.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <cstdint>

/// A knob drawn without an image.
struct KnobLook {
    enum class Shape {
        smooth,  ///< a cap of turned metal
        knurled, ///< the same with a grip around it
        pointer, ///< a bar with a pointed end on a disc
        flat     ///< a disc and a line
    };

    Shape shape = Shape::smooth;
    juce::Colour face{120, 122, 125};
};

struct KnobType {
    const char* imageName = nullptr; ///< null: see keepsImage
    std::int32_t frameCount = 0;
    bool keepsImage = false; ///< that of the type before; otherwise a null name is no image
    bool isBlack = false;
    KnobLook look = {};
};

namespace KnobTypes {

constexpr std::int32_t none = -1;
constexpr std::int32_t last = 10;

/// What the number of a type from a preference or a table comes to. [any thread]
[[nodiscard]] constexpr std::int32_t limited(std::int32_t type) {
    return type < none ? none : (type > last ? last : type);
}

/// Of a limited number. [any thread]
[[nodiscard]] const KnobType& get(std::int32_t type);

} // namespace KnobTypes
