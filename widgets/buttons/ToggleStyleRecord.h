// SPDX-License-Identifier: GPL-3.0-or-later
// The colour that a toggle of an editor's table is lit in.
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <juce_graphics/juce_graphics.h>

#include <cstdint>

struct ToggleStyleRecord : QMWidgetStyleRecord {
    ToggleStyleRecord() = default;

    ToggleStyleRecord(std::uint32_t r, std::uint32_t g, std::uint32_t b, std::uint8_t a)
        : red(r)
        , green(g)
        , blue(b)
        , alpha(a) {}

    // Each from 0 to 255.
    std::uint32_t red = 255;
    std::uint32_t green = 128;
    std::uint32_t blue = 0;
    std::uint8_t alpha = 255;
};

/// Orange for null and for a record of another kind. [any thread]
[[nodiscard]] inline juce::Colour litColourOf(const QMWidgetStyleRecord* style) {
    const auto* const record = dynamic_cast<const ToggleStyleRecord*>(style);
    const ToggleStyleRecord used = record == nullptr ? ToggleStyleRecord() : *record;
    return {static_cast<std::uint8_t>(used.red), static_cast<std::uint8_t>(used.green),
            static_cast<std::uint8_t>(used.blue), used.alpha};
}
