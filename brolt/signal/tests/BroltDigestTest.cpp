// SPDX-License-Identifier: GPL-3.0-or-later
//
// Digests of long renders and of many records, the same on every platform and for every compiler.
//
// A digest says nothing about being right; the other tests do that. It says that today's bits are
// yesterday's and that Windows has the bits of Linux. Change one only with a change of the sound
// that is wanted.

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t blockLength = 192;
constexpr int blockCount = 30 * 44100 / static_cast<int>(blockLength);

/// FNV-1a over 32-bit words taken as four little-endian bytes each
/// (draft-eastlake-fnv, 64-bit offset basis and prime).
class Digest {
public:
    void add(uint32_t word) {
        for (int byte = 0; byte < 4; ++byte) {
            value = (value ^ ((word >> (8 * byte)) & 0xffU)) * 0x100000001b3ULL;
        }
    }

    template <typename Image>
    void addWordsOf(const Image& image) {
        for (const uint32_t word : wordsOf(image))
            add(word);
    }

    uint64_t value = 0xcbf29ce484222325ULL;
};

/// Strokes of decaying noise at random intervals. Products and sums of single-precision numbers
/// alone, so that the samples have the same bits everywhere.
class Strokes {
public:
    explicit Strokes(uint64_t start)
        : random(start) {}

    float next() {
        if (untilStroke-- == 0) {
            untilStroke = 5000 + random.below(20000);
            amplitude = random.fraction() * 1.25F;
            decay = 1.0F - 0.001F * random.fraction();
        }
        amplitude *= decay;
        return amplitude * random.sample();
    }

private:
    TestRandom random;
    uint32_t untilStroke = 100;
    float amplitude = 0.0F;
    float decay = 1.0F;
};

template <int N>
uint64_t renderDigest() {
    TestRandom settings(77);
    std::array<Strokes, 2> strokes{Strokes(11), Strokes(13)};
    TestProcessor<N> processor;
    Coefficients record = recordOf(defaultParameters());
    Digest digest;

    std::array<std::vector<float>, N> input;
    for (std::vector<float>& channel : input)
        channel.resize(blockLength);

    for (int block = 0; block < blockCount; ++block) {
        if (block % 500 == 499)
            record = recordOf(randomParameters(settings), block);
        for (std::size_t i = 0; i < blockLength; ++i) {
            for (std::size_t c = 0; c < N; ++c)
                input[c][i] = strokes[c].next();
        }
        const auto output = processor.run(input, record);
        for (const std::vector<float>& channel : output) {
            for (const float sample : channel)
                digest.add(std::bit_cast<uint32_t>(sample));
        }
    }
    digest.addWordsOf(processor.state);
    return digest.value;
}

} // namespace

TEST(BroltDigest, thirtySecondsOfMonoKeepTheirBits) {
    EXPECT_EQ(renderDigest<1>(), 0xb33117ad58fb243dULL);
}

TEST(BroltDigest, thirtySecondsOfStereoKeepTheirBits) {
    EXPECT_EQ(renderDigest<2>(), 0x20b489bb8bc11f62ULL);
}

TEST(BroltDigest, aHundredThousandRecordsKeepTheirBits) {
    TestRandom random(4711);
    Digest digest;
    for (int i = 0; i < 100000; ++i)
        digest.addWordsOf(recordOf(randomParameters(random), i));
    EXPECT_EQ(digest.value, 0xfbaf798fa6b39225ULL);
}
