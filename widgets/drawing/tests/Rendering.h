// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing into an image, and looking at its pixels.
#pragma once

#include <gtest/gtest.h>
#include <juce_gui_basics/juce_gui_basics.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

/// What the function draws onto this background.
template <typename Draw>
juce::Image rendered(int width, int height, juce::Colour background, const Draw& draw) {
    juce::Image image(juce::Image::ARGB, width, height, true, juce::SoftwareImageType());
    juce::Graphics g(image);
    g.fillAll(background);
    draw(g);
    return image;
}

inline ::testing::AssertionResult isNear(juce::Colour actual, juce::Colour expected,
                                         int tolerance = 2) {
    const auto differs = [tolerance](int a, int b) { return std::abs(a - b) > tolerance; };
    if (differs(actual.getRed(), expected.getRed()) ||
        differs(actual.getGreen(), expected.getGreen()) ||
        differs(actual.getBlue(), expected.getBlue()) ||
        differs(actual.getAlpha(), expected.getAlpha()))
        return ::testing::AssertionFailure()
               << actual.toString() << " instead of " << expected.toString();
    return ::testing::AssertionSuccess();
}

/// Relative luminance of an opaque colour, 0 to 1.
inline double luminance(juce::Colour colour) {
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.getRed() / 255.0) + 0.7152 * linear(colour.getGreen() / 255.0) +
           0.0722 * linear(colour.getBlue() / 255.0);
}

/// 1 to 21; a text wants 4.5.
inline double contrast(juce::Colour one, juce::Colour other) {
    const double bright = std::max(luminance(one), luminance(other));
    const double dark = std::min(luminance(one), luminance(other));
    return (bright + 0.05) / (dark + 0.05);
}
