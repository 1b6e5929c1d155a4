// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/SampleEncoding.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

struct Encoded {
    std::int32_t word;
    std::int64_t beyond;
};

Encoded encode(float sample, int bits) {
    std::int32_t word = 1;
    const std::int64_t beyond = toWholeNumbers(&sample, &word, 1, bits);
    return {word, beyond};
}

constexpr int step16 = 1 << 16;
constexpr int step24 = 1 << 8;

} // namespace

TEST(SampleEncoding, fullScaleIsTheLargestNumberOfItsSize) {
    EXPECT_EQ(encode(-1.0F, 16).word, -32768 * step16);
    EXPECT_EQ(encode(0.5F, 16).word, 16384 * step16);
    EXPECT_EQ(encode(-1.0F, 24).word, -8388608 * step24);
    EXPECT_EQ(encode(0.5F, 24).word, 4194304 * step24);
    EXPECT_EQ(encode(-1.0F, 24).beyond, 0);
}

TEST(SampleEncoding, samplesAreRoundedToTheNearestNumberHalvesToEven) {
    EXPECT_EQ(encode(1.4F / 32768.0F, 16).word, 1 * step16);
    EXPECT_EQ(encode(1.5F / 32768.0F, 16).word, 2 * step16);
    EXPECT_EQ(encode(2.5F / 32768.0F, 16).word, 2 * step16);
    EXPECT_EQ(encode(-1.5F / 32768.0F, 16).word, -2 * step16);
    EXPECT_EQ(encode(-0.25F / 8388608.0F, 24).word, 0);
}

TEST(SampleEncoding, samplesBeyondFullScaleAreClippedAndCounted) {
    for (const float sample : {1.0F, 1.5F, std::numeric_limits<float>::infinity()}) {
        EXPECT_EQ(encode(sample, 16).word, 32767 * step16) << sample;
        EXPECT_EQ(encode(sample, 24).word, 8388607 * step24) << sample;
        EXPECT_EQ(encode(sample, 16).beyond, 1) << sample;
    }
    EXPECT_EQ(encode(-1.5F, 16).word, -32768 * step16);
    EXPECT_EQ(encode(-1.5F, 16).beyond, 1);
}

TEST(SampleEncoding, notANumberBecomesSilenceAndIsCounted) {
    const Encoded encoded = encode(std::numeric_limits<float>::quiet_NaN(), 24);
    EXPECT_EQ(encoded.word, 0);
    EXPECT_EQ(encoded.beyond, 1);
}

TEST(SampleEncoding, everySampleOfABufferIsEncoded) {
    const std::array<float, 3> samples{0.25F, 2.0F, -0.25F};
    std::array<std::int32_t, 3> words{};
    EXPECT_EQ(toWholeNumbers(samples.data(), words.data(), samples.size(), 16), 1);
    EXPECT_EQ(words[0], 8192 * step16);
    EXPECT_EQ(words[1], 32767 * step16);
    EXPECT_EQ(words[2], -8192 * step16);
}
