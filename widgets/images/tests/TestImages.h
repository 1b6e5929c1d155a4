// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures for tests: made of a formula, so that every pixel's expected value is known.
#pragma once

#include <gtest/gtest.h>
#include <juce_graphics/juce_graphics.h>

#include <cstdint>
#include <random>
#include <span>
#include <vector>

using PictureBytes = std::vector<std::uint8_t>;

/// Pixels of every kind, the same at every run; premultiplied where there is alpha.
inline juce::Image noiseImage(juce::Image::PixelFormat format, int width, int height) {
    juce::Image image(format, width, height, true);
    std::minstd_rand random(static_cast<unsigned>(width * 1000 + height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixelAt(x, y, juce::Colour(static_cast<std::uint32_t>(random()) * 2 + 1));
    return image;
}

inline PictureBytes pngOf(const juce::Image& image) {
    juce::MemoryOutputStream stream;
    EXPECT_TRUE(juce::PNGImageFormat().writeImageToStream(image, stream));
    const auto* const bytes = static_cast<const std::uint8_t*>(stream.getData());
    return {bytes, bytes + stream.getDataSize()};
}

/// Bytes of all pixels, channel by channel as they are in memory.
inline PictureBytes pixelsOf(const juce::Image& image) {
    const juce::Image::BitmapData data(image, juce::Image::BitmapData::readOnly);
    PictureBytes bytes;
    for (int y = 0; y < data.height; ++y) {
        const std::uint8_t* const line = data.getLinePointer(y);
        bytes.insert(bytes.end(), line, line + data.width * data.pixelStride);
    }
    return bytes;
}
