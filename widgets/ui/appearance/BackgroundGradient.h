// SPDX-License-Identifier: GPL-3.0-or-later
// The backgrounds that are no picture's: a colour that runs from the top to the bottom of the
// editor, on demand with highlights as on polished metal. The same size gives the same pixels.
#pragma once

#include <juce_graphics/juce_graphics.h>

struct BackgroundGradient {
    juce::Colour top;
    juce::Colour bottom;
    bool hasHighlights = false;

    bool operator==(const BackgroundGradient&) const = default;

    /// The colour of the first row is the top's, that of the last row the bottom's. In between
    /// steps of one level are broken up by a fixed pattern, since whole steps show as bands.
    /// Opaque. [any thread]
    [[nodiscard]] juce::Image image(int width, int height) const;

    /// 0: the colour itself; up to 1: as much of the way to white; down to -1: to black. Beyond,
    /// and what is no number, as AppearanceLimits says. Opaque. [any thread]
    [[nodiscard]] static juce::Colour atBrightness(juce::Colour base, float brightness);
};
