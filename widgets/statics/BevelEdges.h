// SPDX-License-Identifier: GPL-3.0-or-later
// The two kinds of edge that bevels and dividers are made of: one in the light, one in the shade.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <array>

/// Colours of the three lines of an edge, the first at the top or at the left.
using BevelEdge = std::array<juce::Colour, 3>;

namespace BevelEdges {

struct Tone {
    juce::Colour colour;
    float strength;
};

[[nodiscard]] inline Tone light() {
    return {juce::Colours::white, 0.1f};
}

[[nodiscard]] inline Tone dark() {
    return {juce::Colours::black, 0.4f};
}

/// The edge at the top or at the left: a line with a faint one on either side.
[[nodiscard]] inline BevelEdge first(Tone tone) {
    const float s = tone.strength;
    return {tone.colour.withAlpha(s * s), tone.colour.withAlpha(s), tone.colour.withAlpha(s * s)};
}

/// The edge at the bottom or at the right: stronger line by line.
[[nodiscard]] inline BevelEdge last(Tone tone) {
    const float s = tone.strength;
    return {tone.colour.withAlpha(s * s * s), tone.colour.withAlpha(s * s),
            tone.colour.withAlpha(s)};
}

} // namespace BevelEdges
