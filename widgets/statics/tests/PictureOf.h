// SPDX-License-Identifier: GPL-3.0-or-later
// What a component draws, for tests that look at pixels.
#pragma once

#include <gtest/gtest.h>
#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdlib>

/// Drawn by the toolkit's own renderer, so that it is the same everywhere.
[[nodiscard]] inline juce::Image pictureOf(juce::Component& component,
                                           juce::Colour background = juce::Colours::black) {
    const juce::Image picture(juce::Image::RGB, component.getWidth(), component.getHeight(), true,
                              juce::SoftwareImageType());
    juce::Graphics g(picture);
    g.fillAll(background);
    component.paintEntireComponent(g, true);
    return picture;
}

[[nodiscard]] inline juce::Image imageOf(juce::Colour colour, int width, int height) {
    juce::Image image(juce::Image::ARGB, width, height, true, juce::SoftwareImageType());
    image.clear(image.getBounds(), colour);
    return image;
}

[[nodiscard]] inline bool isNear(juce::Colour a, juce::Colour b, int tolerance) {
    const auto near = [tolerance](juce::uint8 x, juce::uint8 y) {
        return std::abs(int{x} - int{y}) <= tolerance;
    };
    return near(a.getRed(), b.getRed()) && near(a.getGreen(), b.getGreen()) &&
           near(a.getBlue(), b.getBlue());
}

/// EXPECT_PRED_FORMAT-like: says what is there instead.
inline void expectPixel(const juce::Image& picture, int x, int y, juce::Colour expected,
                        int tolerance = 2) {
    const juce::Colour found = picture.getPixelAt(x, y);
    EXPECT_TRUE(isNear(found, expected, tolerance))
        << "at " << x << ", " << y << ": " << found.toString() << " instead of "
        << expected.toString();
}

/// The smallest rectangle around every pixel that is not of the background's colour.
[[nodiscard]] inline juce::Rectangle<int> inkOf(const juce::Image& picture,
                                                juce::Colour background = juce::Colours::black,
                                                int tolerance = 40) {
    juce::Rectangle<int> ink;
    for (int y = 0; y < picture.getHeight(); ++y) {
        for (int x = 0; x < picture.getWidth(); ++x) {
            if (!isNear(picture.getPixelAt(x, y), background, tolerance))
                ink = ink.isEmpty() ? juce::Rectangle<int>(x, y, 1, 1) : ink.getUnion({x, y, 1, 1});
        }
    }
    return ink;
}
