// SPDX-License-Identifier: GPL-3.0-or-later
// The reducer against the definition, worked out pixel by pixel in floating point.

#include "widgets/images/ImageReduction.h"

#include "widgets/images/tests/TestImages.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

using Format = juce::Image::PixelFormat;

/// How much of the source pixel the destination pixel covers, in destination pixels.
double cover(int sourcePixel, int destinationPixel, double factor) {
    const double begin = std::max(sourcePixel * factor, static_cast<double>(destinationPixel));
    const double end = std::min((sourcePixel + 1) * factor, destinationPixel + 1.0);
    return std::max(0.0, end - begin);
}

/// The average of one channel over the area that a destination pixel covers.
double averageOver(const juce::Image::BitmapData& source, int x, int y, int channel, double factorX,
                   double factorY) {
    double sum = 0.0;
    double area = 0.0;
    const int right = std::min(source.width, static_cast<int>((x + 1) / factorX) + 1);
    const int bottom = std::min(source.height, static_cast<int>((y + 1) / factorY) + 1);
    for (int row = static_cast<int>(y / factorY); row < bottom; ++row) {
        for (int column = static_cast<int>(x / factorX); column < right; ++column) {
            const double weight = cover(column, x, factorX) * cover(row, y, factorY);
            sum += weight * source.getPixelPointer(column, row)[channel];
            area += weight;
        }
    }
    return sum / area;
}

/// The largest difference from the definition, in steps of 1/255.
double worstError(const juce::Image& source, double factorX, double factorY) {
    const juce::Image reduced = reduceImage(source, factorX, factorY);
    const juce::Image::BitmapData from(source, juce::Image::BitmapData::readOnly);
    const juce::Image::BitmapData to(reduced, juce::Image::BitmapData::readOnly);
    double worst = 0.0;
    for (int y = 0; y < to.height; ++y)
        for (int x = 0; x < to.width; ++x)
            for (int channel = 0; channel < to.pixelStride; ++channel)
                worst =
                    std::max(worst, std::abs(averageOver(from, x, y, channel, factorX, factorY) -
                                             to.getPixelPointer(x, y)[channel]));
    return worst;
}

/// Half a step of rounding. The two edges of a cover are each up to 1/1024 off, in both directions:
/// 4/1024 of 255 at the most, one step. Noise comes nowhere near that.
constexpr double tolerance = 1.3;

TEST(ImageReduction, averagesWhatEachPixelCovers) {
    for (const Format format : {Format::ARGB, Format::RGB, Format::SingleChannel})
        for (const double factor : {0.05, 0.21, 0.33, 0.5, 0.6, 0.75, 0.875, 0.99})
            EXPECT_LE(worstError(noiseImage(format, 61, 43), factor, factor), tolerance)
                << format << " by " << factor;
}

TEST(ImageReduction, takesAFactorForEachAxis) {
    const juce::Image source = noiseImage(Format::ARGB, 57, 31);
    const juce::Image reduced = reduceImage(source, 0.9, 0.3);
    EXPECT_EQ(reduced.getWidth(), 51); // 57 x 0.9 = 51.3
    EXPECT_EQ(reduced.getHeight(), 9); // 31 x 0.3 = 9.3
    EXPECT_LE(worstError(source, 0.9, 0.3), tolerance);
}

TEST(ImageReduction, handlesRowsOfEveryLength) {
    for (int width = 2; width <= 24; ++width)
        for (const Format format : {Format::ARGB, Format::RGB, Format::SingleChannel})
            EXPECT_LE(worstError(noiseImage(format, width, 5), 0.7, 0.7), tolerance)
                << width << " pixels of " << format;
}

TEST(ImageReduction, averagesPairsExactly) {
    juce::Image source(Format::SingleChannel, 4, 2, true);
    juce::Image::BitmapData pixels(source, juce::Image::BitmapData::readWrite);
    const std::uint8_t values[2][4] = {{0, 100, 7, 8}, {200, 100, 9, 12}};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 4; ++x)
            *pixels.getPixelPointer(x, y) = values[y][x];
    const PictureBytes reduced = pixelsOf(reduceImage(source, 0.5));
    // (0 + 100 + 200 + 100) / 4 and (7 + 8 + 9 + 12) / 4
    EXPECT_EQ(reduced, (PictureBytes{100, 9}));
}

TEST(ImageReduction, weighsAPixelThatTwoShareByItsParts) {
    juce::Image source(Format::SingleChannel, 3, 3, true);
    juce::Image::BitmapData pixels(source, juce::Image::BitmapData::readWrite);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x)
            *pixels.getPixelPointer(x, y) = static_cast<std::uint8_t>(x == 1 ? 240 : 0);
    // Two thirds: each destination pixel is one and a half wide, a third of it the middle one.
    EXPECT_EQ(pixelsOf(reduceImage(source, 2.0 / 3.0)), (PictureBytes{80, 80, 80, 80}));
}

TEST(ImageReduction, keepsOneColourAsItIs) {
    for (const double factor : {0.051, 0.37, 0.6, 0.98}) {
        juce::Image source(Format::ARGB, 97, 53, false);
        source.clear(source.getBounds(), juce::Colour(0xffffffff));
        for (const std::uint8_t byte : pixelsOf(reduceImage(source, factor)))
            ASSERT_EQ(byte, 255) << factor;
        source.clear(source.getBounds(), juce::Colour(0x00000000));
        for (const std::uint8_t byte : pixelsOf(reduceImage(source, factor)))
            ASSERT_EQ(byte, 0) << factor;
    }
}

TEST(ImageReduction, neverMakesAColourStrongerThanItsAlpha) {
    const juce::Image reduced = reduceImage(noiseImage(Format::ARGB, 83, 71), 0.37);
    const PictureBytes pixels = pixelsOf(reduced);
    for (std::size_t i = 0; i < pixels.size(); i += 4)
        for (std::size_t channel = 0; channel < 3; ++channel)
            ASSERT_LE(pixels[i + channel], pixels[i + 3]);
}

TEST(ImageReduction, keepsFramesOfALongStripInPlace) {
    // A hundred frames of 10 rows, alternately dark and bright: 6 rows each afterwards, sharp to
    // the last one.
    juce::Image source(Format::SingleChannel, 2, 1000, true);
    juce::Image::BitmapData pixels(source, juce::Image::BitmapData::readWrite);
    for (int y = 0; y < 1000; ++y)
        for (int x = 0; x < 2; ++x)
            *pixels.getPixelPointer(x, y) = static_cast<std::uint8_t>(y / 10 % 2 == 0 ? 0 : 255);
    const PictureBytes reduced = pixelsOf(reduceImage(source, 0.6));
    ASSERT_EQ(reduced.size(), 600U);
    for (std::size_t y = 0; y < 600; ++y)
        EXPECT_NEAR(reduced[y], y / 6 % 2 == 0 ? 0 : 255, 1) << y;
}

TEST(ImageReduction, truncatesTheSizeAndLeavesAtLeastAPixel) {
    EXPECT_EQ(reducedLength(2176, 0.6), 1305); // 1305.6
    EXPECT_EQ(reducedLength(5, 0.5), 2);
    EXPECT_EQ(reducedLength(1, 0.5), 1);
    const juce::Image reduced = reduceImage(noiseImage(Format::RGB, 3, 300), 0.05);
    EXPECT_EQ(reduced.getWidth(), 1);
    EXPECT_EQ(reduced.getHeight(), 15);
}

TEST(ImageReduction, averagesAllOfAnAxisThatBecomesOnePixel) {
    juce::Image source(Format::SingleChannel, 3, 1, true);
    juce::Image::BitmapData pixels(source, juce::Image::BitmapData::readWrite);
    *pixels.getPixelPointer(0, 0) = 30;
    *pixels.getPixelPointer(1, 0) = 60;
    *pixels.getPixelPointer(2, 0) = 210;
    const PictureBytes reduced = pixelsOf(reduceImage(source, 0.2, 0.9));
    ASSERT_EQ(reduced.size(), 1U);
    EXPECT_NEAR(reduced[0], 100, 1);
}

TEST(ImageReduction, keepsASinglePixel) {
    const juce::Image source = noiseImage(Format::ARGB, 1, 1);
    for (const double factor : {0.001, 0.05, 0.5, 0.999})
        EXPECT_EQ(pixelsOf(reduceImage(source, factor)), pixelsOf(source)) << factor;
}

TEST(ImageReduction, readsAPartOfAnImage) {
    const juce::Image whole = noiseImage(Format::ARGB, 40, 30);
    const juce::Image part = whole.getClippedImage({7, 5, 20, 16});
    EXPECT_EQ(pixelsOf(reduceImage(part, 0.5)), pixelsOf(reduceImage(part.createCopy(), 0.5)));
}

TEST(ImageReduction, leavesEnlargingToTheToolkit) {
    const juce::Image source = noiseImage(Format::ARGB, 8, 8);
    EXPECT_EQ(reduceImage(source, 1.0), source);
    EXPECT_EQ(reduceImage(source, 0.5, 1.0), source);
    EXPECT_EQ(reduceImage(source, 2.0, 0.5), source);
}

TEST(ImageReduction, makesNothingOutOfNothing) {
    EXPECT_TRUE(reduceImage({}, 0.5).isNull());
    const juce::Image source = noiseImage(Format::ARGB, 8, 8);
    EXPECT_TRUE(reduceImage(source, 0.0).isNull());
    EXPECT_TRUE(reduceImage(source, 0.5, -1.0).isNull());
    EXPECT_TRUE(reduceImage(source, std::numeric_limits<double>::quiet_NaN()).isNull());
}

TEST(ImageReduction, reducesAStripOfKnobFramesQuickly) {
    const juce::Image strip(Format::ARGB, 2048, 2176, true);
    auto best = std::chrono::steady_clock::duration::max();
    for (int i = 0; i < 5; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(reduceImage(strip, 0.6).getWidth(), 1228);
        best = std::min(best, std::chrono::steady_clock::now() - begin);
    }
    const auto us = std::chrono::duration_cast<std::chrono::microseconds>(best).count();
    RecordProperty("microseconds", static_cast<int>(us));
    // It takes a few milliseconds; the limit allows for sanitizers and busy machines.
    EXPECT_LT(us, 500000);
}

} // namespace
