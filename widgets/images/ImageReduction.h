// SPDX-License-Identifier: GPL-3.0-or-later
// Making an image smaller by averaging areas: what the toolkit's own scaling, which looks at the
// nearest few pixels, would show ragged.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// Each pixel is the average of those it covers, premultiplied, the partial cover of those at its
/// edges in steps of 1/1024. Size and place follow the factors: the width is the source's times
/// factorX, truncated (at least 1), and what is left over at the right and at the bottom is
/// dropped.
///
/// The source itself where a factor is 1 or more: the toolkit scales well then. A null image where
/// one is 0 or less, or no number. [any thread]
[[nodiscard]] juce::Image reduceImage(const juce::Image& source, double factorX, double factorY);

/// [any thread]
[[nodiscard]] inline juce::Image reduceImage(const juce::Image& source, double factor) {
    return reduceImage(source, factor, factor);
}

/// The width or height of the reduced image. [any thread]
[[nodiscard]] int reducedLength(int length, double factor);
