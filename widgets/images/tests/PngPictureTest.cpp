// SPDX-License-Identifier: GPL-3.0-or-later
// PNG pictures, whole, cut off and damaged. The toolkit reads them through a callback that Debian
// patches, and that this project mends (cmake/shims/juce_graphics/png.h); without it the first
// damaged picture ends the process.

#include "widgets/images/ImageDecoding.h"
#include "widgets/images/PngStructure.h"
#include "widgets/images/tests/TestImages.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

/// A check sum as PNG has it, bit by bit.
std::uint32_t checkSum(std::span<const std::uint8_t> data) {
    std::uint32_t sum = 0xffffffff;
    for (const std::uint8_t byte : data) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? (sum >> 1) ^ 0xedb88320 : sum >> 1;
    }
    return ~sum;
}

void writeBigEndian(PictureBytes& bytes, std::size_t offset, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

/// Where the name of the chunk is.
std::size_t chunkName(const PictureBytes& bytes, const char* name) {
    const auto found = std::search(bytes.begin(), bytes.end(), name, name + 4);
    EXPECT_NE(found, bytes.end()) << name;
    return static_cast<std::size_t>(found - bytes.begin());
}

/// The size in the header becomes another one, with the right check sum.
PictureBytes withSize(PictureBytes bytes, std::uint32_t width, std::uint32_t height) {
    const std::size_t name = chunkName(bytes, "IHDR");
    writeBigEndian(bytes, name + 4, width);
    writeBigEndian(bytes, name + 8, height);
    writeBigEndian(bytes, name + 17, checkSum(std::span(bytes).subspan(name, 17)));
    return bytes;
}

class PngPicture : public ::testing::Test {
protected:
    const juce::Image image = noiseImage(juce::Image::ARGB, 29, 17);
    const PictureBytes png = pngOf(image);

    /// A picture that is good is read after whatever happened.
    void expectTheNextOneLoads() const {
        const juce::Image loaded = decodeImage(png).image;
        ASSERT_EQ(loaded.getBounds(), image.getBounds());
    }
};

TEST_F(PngPicture, isReadWithItsAlpha) {
    juce::Image two(juce::Image::ARGB, 2, 1, true);
    two.setPixelAt(0, 0, juce::Colour(0xff102030));
    two.setPixelAt(1, 0, juce::Colour(0x00000000));
    const DecodedImage decoded = decodeImage(pngOf(two));
    EXPECT_EQ(decoded.problem, nullptr);
    EXPECT_EQ(decoded.image.getFormat(), juce::Image::ARGB);
    EXPECT_EQ(decoded.image.getPixelAt(0, 0), juce::Colour(0xff102030));
    EXPECT_EQ(decoded.image.getPixelAt(1, 0).getAlpha(), 0);
}

TEST_F(PngPicture, isReadWithoutAlpha) {
    const juce::Image opaque = noiseImage(juce::Image::RGB, 13, 11);
    const DecodedImage decoded = decodeImage(pngOf(opaque));
    EXPECT_EQ(decoded.image.getFormat(), juce::Image::RGB);
    EXPECT_EQ(pixelsOf(decoded.image), pixelsOf(opaque));
}

TEST_F(PngPicture, damagedInAnyPlaceNeverEndsTheProgram) {
    int refused = 0;
    for (std::size_t i = 0; i < png.size(); i += 10) {
        PictureBytes damaged = png;
        damaged[i] = static_cast<std::uint8_t>(~damaged[i]);
        const DecodedImage decoded = decodeImage(damaged);
        EXPECT_EQ(decoded.image.isNull(), decoded.problem != nullptr) << i;
        refused += decoded.image.isNull() ? 1 : 0;
    }
    EXPECT_GT(refused, 0);
    expectTheNextOneLoads();
}

TEST_F(PngPicture, damagedInAnyPlaceNeverEndsTheToolkitsReader) {
    // Without the look at the structure beforehand.
    for (std::size_t i = 8; i < png.size(); i += 10) {
        PictureBytes damaged = png;
        damaged[i] = static_cast<std::uint8_t>(~damaged[i]);
        juce::MemoryInputStream stream(damaged.data(), damaged.size(), false);
        static_cast<void>(juce::PNGImageFormat().decodeImage(stream));
    }
    expectTheNextOneLoads();
}

TEST_F(PngPicture, cutOffAnywhereIsRefused) {
    for (std::size_t length = 0; length < png.size(); length += 10) {
        const DecodedImage decoded = decodeImage(std::span(png).first(length));
        EXPECT_TRUE(decoded.image.isNull()) << length;
        EXPECT_NE(decoded.problem, nullptr) << length;
    }
    EXPECT_TRUE(decodeImage(std::span(png).first(png.size() - 1)).image.isNull());
    expectTheNextOneLoads();
}

TEST_F(PngPicture, withAWrongCheckSumOfItsPixelsIsRefused) {
    PictureBytes damaged = png;
    const std::size_t name = chunkName(png, "IDAT");
    const std::size_t length = static_cast<std::size_t>(png[name - 2]) << 8 | png[name - 1];
    ASSERT_EQ(checkSum(std::span(png).subspan(name, length + 4)) & 0xff,
              png[name + 4 + length + 3]);
    damaged[name + 4 + length + 3] ^= 1;
    EXPECT_TRUE(decodeImage(damaged).image.isNull());
    expectTheNextOneLoads();
}

TEST_F(PngPicture, ofPixelsThatDoNotFillItIsRefused) {
    EXPECT_TRUE(decodeImage(withSize(png, 29, 18)).image.isNull());
    expectTheNextOneLoads();
}

TEST_F(PngPicture, thatIsTooLargeIsRefusedByItsHeader) {
    EXPECT_STREQ(decodeImage(withSize(png, 16385, 1)).problem, "too large");
    EXPECT_STREQ(decodeImage(withSize(png, 1, 16385)).problem, "too large");
    // Four bytes a pixel: 8192 x 8192 is 256 MB exactly.
    EXPECT_STREQ(decodeImage(withSize(png, 8192, 8193)).problem, "too large");
    EXPECT_STREQ(decodeImage(withSize(png, 0xffffffff, 0xffffffff)).problem, "too large");
    EXPECT_STREQ(decodeImage(withSize(png, 0, 17)).problem, "damaged");
}

TEST_F(PngPicture, whoseChunkIsLongerThanTheFileIsNotWhole) {
    EXPECT_TRUE(sizeOfWholePng(png));
    PictureBytes damaged = png;
    writeBigEndian(damaged, chunkName(png, "IDAT") - 4, 0xffffffff);
    EXPECT_FALSE(sizeOfWholePng(damaged));
}

TEST(ImageDecoding, refusesWhatIsNeitherPngNorWebp) {
    const std::string gif = "GIF89a\x01\x00\x01\x00 and so on";
    const std::array<std::uint8_t, 12> jpeg = {0xff, 0xd8, 0xff, 0xe0, 0, 16, 'J', 'F', 'I', 'F'};
    const auto* const gifBytes = reinterpret_cast<const std::uint8_t*>(gif.data());
    EXPECT_STREQ(decodeImage({gifBytes, gif.size()}).problem, "neither PNG nor WebP");
    EXPECT_STREQ(decodeImage(jpeg).problem, "neither PNG nor WebP");
    EXPECT_STREQ(decodeImage({}).problem, "neither PNG nor WebP");
}

TEST(ImageDecoding, refusesAWholeJpeg) {
    juce::MemoryOutputStream stream;
    ASSERT_TRUE(
        juce::JPEGImageFormat().writeImageToStream(noiseImage(juce::Image::RGB, 16, 16), stream));
    const auto* const bytes = static_cast<const std::uint8_t*>(stream.getData());
    EXPECT_TRUE(decodeImage({bytes, stream.getDataSize()}).image.isNull());
}

} // namespace
