// SPDX-License-Identifier: GPL-3.0-or-later
// WebP pictures that libwebp's encoder made of known pixels.

#include "widgets/images/WebpPicture.h"
#include "widgets/images/ImageDecoding.h"
#include "widgets/images/tests/TestImages.h"

#include <webp/encode.h>

namespace {

/// Red, green, blue, alpha; not premultiplied.
struct Picture {
    int width = 0;
    int height = 0;
    PictureBytes pixels;
};

Picture noisePicture(int width, int height) {
    Picture picture{.width = width, .height = height, .pixels = {}};
    std::minstd_rand random(7);
    for (int i = 0; i < width * height * 4; ++i)
        picture.pixels.push_back(static_cast<std::uint8_t>(random() >> 8));
    return picture;
}

PictureBytes taken(std::uint8_t* encoded, std::size_t size) {
    EXPECT_GT(size, 0U);
    PictureBytes bytes(encoded, encoded + size);
    WebPFree(encoded);
    return bytes;
}

PictureBytes lossless(const Picture& picture) {
    std::uint8_t* encoded = nullptr;
    const std::size_t size = WebPEncodeLosslessRGBA(picture.pixels.data(), picture.width,
                                                    picture.height, picture.width * 4, &encoded);
    return taken(encoded, size);
}

PictureBytes lossy(const Picture& picture) {
    std::uint8_t* encoded = nullptr;
    const std::size_t size = WebPEncodeRGBA(picture.pixels.data(), picture.width, picture.height,
                                            picture.width * 4, 90.0F, &encoded);
    return taken(encoded, size);
}

/// A picture without loss that begins properly and has these sides, 1 to 16384.
PictureBytes headerOnly(std::uint32_t width, std::uint32_t height) {
    const std::uint32_t sides = (width - 1) | (height - 1) << 14;
    PictureBytes bytes = {'R', 'I', 'F', 'F', 28,  0,  0, 0, 'W', 'E', 'B',
                          'P', 'V', 'P', '8', 'L', 16, 0, 0, 0,   0x2f};
    for (int i = 0; i < 4; ++i)
        bytes.push_back(static_cast<std::uint8_t>(sides >> (8 * i)));
    bytes.resize(8 + 28);
    return bytes;
}

TEST(WebpPicture, withoutLossHasTheToolkitsPremultipliedPixels) {
    const Picture picture = noisePicture(37, 23);
    const DecodedImage decoded = decodeImage(lossless(picture));
    ASSERT_EQ(decoded.problem, nullptr);
    ASSERT_EQ(decoded.image.getFormat(), juce::Image::ARGB);
    ASSERT_EQ(decoded.image.getBounds(), juce::Rectangle<int>(37, 23));
    const PictureBytes pixels = pixelsOf(decoded.image);
    ASSERT_EQ(pixels.size(), picture.pixels.size());
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        const int alpha = picture.pixels[i + 3];
        ASSERT_EQ(pixels[i + 3], alpha);
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const int straight = picture.pixels[i + channel];
            const int premultiplied = pixels[i + 2 - channel];
            // The toolkit divides by 256 where 255 would be right, so it may be a step less.
            ASSERT_NEAR(premultiplied, straight * alpha / 255.0, 1.5);
            ASSERT_LE(premultiplied, alpha);
        }
    }
}

TEST(WebpPicture, isTheSameImageAsThatOfAPng) {
    Picture picture = noisePicture(20, 20);
    for (std::size_t i = 3; i < picture.pixels.size(); i += 4)
        picture.pixels[i] = 255; // the way to PNG rounds what is not opaque
    const juce::Image image = decodeImage(lossless(picture)).image;
    EXPECT_EQ(pixelsOf(decodeImage(pngOf(image)).image), pixelsOf(image));
}

TEST(WebpPicture, withLossComesClose) {
    Picture picture{.width = 32, .height = 32, .pixels = {}};
    for (int i = 0; i < 32 * 32; ++i)
        picture.pixels.insert(picture.pixels.end(), {200, 100, 50, 255});
    const juce::Image image = decodeImage(lossy(picture)).image;
    ASSERT_EQ(image.getFormat(), juce::Image::ARGB);
    const juce::Colour middle = image.getPixelAt(16, 16);
    EXPECT_EQ(middle.getAlpha(), 255);
    EXPECT_NEAR(middle.getRed(), 200, 6);
    EXPECT_NEAR(middle.getGreen(), 100, 6);
    EXPECT_NEAR(middle.getBlue(), 50, 6);
}

TEST(WebpPicture, cutOffOrDamagedNeverEndsTheProgram) {
    for (const PictureBytes& good : {lossless(noisePicture(31, 9)), lossy(noisePicture(31, 9))}) {
        ASSERT_TRUE(decodeImage(good).image.isValid());
        for (std::size_t length = 0; length + 1 < good.size(); length += 10)
            EXPECT_TRUE(decodeImage(std::span(good).first(length)).image.isNull()) << length;
        for (std::size_t i = 0; i < good.size(); i += 10) {
            PictureBytes damaged = good;
            damaged[i] = static_cast<std::uint8_t>(~damaged[i]);
            const DecodedImage decoded = decodeImage(damaged);
            EXPECT_EQ(decoded.image.isNull(), decoded.problem != nullptr) << i;
        }
    }
}

TEST(WebpPicture, thatIsTooLargeIsRefusedByItsHeader) {
    const auto size = sizeOfWebp(headerOnly(16384, 4097));
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 16384);
    EXPECT_EQ(size->height, 4097);
    EXPECT_STREQ(decodeImage(headerOnly(16384, 4097)).problem, "too large");
    EXPECT_STREQ(decodeImage(headerOnly(3, 3)).problem, "damaged");
}

} // namespace
