// SPDX-License-Identifier: GPL-3.0-or-later
//
// The shipped processor against the reference, bit for bit: outputs and the whole state image,
// after every one of many random blocks. Records reach the shipped one through the real queue.
//
// BROLT_IDENTITY_BLOCKS sets the number of blocks for each layout, BROLT_IDENTITY_START the start
// of the random numbers.

#include "brolt/signal/QMCoefficientQueue.h"
#include "brolt/signal/tests/BroltTestKit.h"
#include "brolt/signal/tests/reference/ReferenceBrolt.h"
#include "brolt/signal/tests/reference/ReferenceQueue.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>
#include <memory>
#include <string>

namespace {

constexpr int32_t longestBlock = 4096;
constexpr int32_t margin = 8; ///< samples behind a block that nobody may touch
constexpr uint64_t defaultBlocks = 500000;
constexpr uint64_t defaultStart = 20240229;

uint64_t environmentNumber(const char* name, uint64_t otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr || *text == '\0' ? otherwise : std::strtoull(text, nullptr, 10);
}

bool sameBits(float a, float b) {
    return std::bit_cast<uint32_t>(a) == std::bit_cast<uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

float awkwardSample(TestRandom& random) {
    using Limits = std::numeric_limits<float>;
    switch (random.below(9)) {
    case 0:
        return Limits::infinity();
    case 1:
        return -Limits::infinity();
    case 2:
        return Limits::quiet_NaN();
    case 3:
        return -Limits::quiet_NaN();
    case 4:
        return random.oneIn(2) ? 1e30F : -1e30F;
    case 5:
        return Limits::max();
    case 6:
        return random.oneIn(2) ? Limits::min() : -Limits::min();
    case 7:
        return -0.0F;
    default:
        return std::bit_cast<float>(random.next() & 0x807fffffU);
    }
}

/// One channel's input. Answers whether it may have left an infinity or NaN in a meter.
bool fillInput(TestRandom& random, float* samples, int32_t frames) {
    const uint32_t kind = random.below(16);
    float amplitude = random.fraction() * (random.oneIn(4) ? 4.0F : 1.0F);
    const float decay = 1.0F - random.fraction() * 0.01F;
    for (int32_t i = 0; i < frames; ++i) {
        if (kind < 2) {
            samples[i] = 0.0F;
        } else if (kind < 5) {
            samples[i] = amplitude * random.sample();
        } else if (kind < 9) {
            samples[i] = (i & 64) != 0 ? amplitude : -amplitude;
            amplitude *= decay;
        } else if (kind < 11) {
            samples[i] = amplitude;
        } else if (kind < 13) {
            samples[i] = std::bit_cast<float>(random.next() & 0x807fffffU);
        } else if (kind < 15) {
            samples[i] = random.oneIn(64) ? awkwardSample(random) : random.sample();
        } else {
            samples[i] = random.pattern();
        }
    }
    return kind >= 13;
}

int32_t randomFrameCount(TestRandom& random) {
    constexpr std::array<int32_t, 14> edges{0,   1,   2,   3,    255,  256, 257,
                                            511, 512, 513, 4095, 4096, -1,  -4096};
    if (random.oneIn(8))
        return edges[random.below(edges.size())];
    if (random.oneIn(16))
        return static_cast<int32_t>(random.below(longestBlock + 1));
    return static_cast<int32_t>(random.below(random.oneIn(4) ? 1025 : 129));
}

/// Mostly what parameters can give; now and then anything at all, and equal frequencies, for which
/// a sweep by an infinite envelope is not a number.
Coefficients randomRecord(TestRandom& random, int32_t version) {
    BroltParameters parameters = randomParameters(random);
    if (random.oneIn(8))
        parameters.osc1SustainFrequency = parameters.osc1AttackFrequency;
    Coefficients record = recordOf(parameters, version);
    if (random.oneIn(32)) {
        std::array<float, 18> values{};
        for (float& value : values)
            value = random.oneIn(8) ? awkwardSample(random) : random.sample() * 2.0F;
        record = std::bit_cast<Coefficients>(values);
    }
    return record;
}

/// Four buffers, of which the channels' inputs and outputs are chosen, the same ones on both sides.
using Buffers = std::array<std::array<float, longestBlock + margin>, 4>;

template <int N>
class Comparison {
public:
    explicit Comparison(uint64_t start)
        : random(start)
        , reference(N) {
        Brolt<N, float>::initialiseState(state);
    }

    void runBlock() {
        actOnState();
        exchangeRecords();
        chooseBuffers();

        const int32_t count = randomFrameCount(random);
        const int32_t used = std::max(count, 0) + margin;
        bool poisoned = false;
        for (auto& buffer : shippedBuffers)
            poisoned = fillInput(random, buffer.data(), used) || poisoned;
        for (std::size_t b = 0; b < shippedBuffers.size(); ++b)
            std::copy_n(shippedBuffers[b].begin(), used, referenceBuffers[b].begin());

        const auto* record = static_cast<const Coefficients*>(queue.current());
        const Coefficients& referenceRecord = referenceQueue.current();
        ASSERT_EQ(std::memcmp(record, &referenceRecord, sizeof(Coefficients)), 0);

        const auto shipped = pointersInto(shippedBuffers);
        Brolt<N, float>::process(state, shipped.in.data(), shipped.out.data(), *record, count);
        const auto plain = pointersInto(referenceBuffers);
        reference.process(plain.in.data(), plain.out.data(), &referenceRecord, count);

        compareBuffers(used);
        compareState();
        frames += static_cast<uint64_t>(std::max(count, 0));

        // An infinity would keep the meters out of the comparison for the rest of the run.
        if (poisoned && random.oneIn(2))
            resetMeters();
    }

    uint64_t frames = 0;

private:
    struct Pointers {
        std::array<const float*, N> in;
        std::array<float*, N> out;
    };

    void actOnState() {
        if (random.oneIn(40)) {
            Brolt<N, float>::initialiseState(state);
            reference.initialise();
            if (random.oneIn(4))
                disturbFloats();
        }
        if (random.oneIn(30)) {
            Brolt<N, float>::resetState(state);
            reference.reset();
        }
        if (random.oneIn(30))
            resetMeters();
        if (random.oneIn(8)) {
            state.snapshotRequest = static_cast<int32_t>(random.next());
            reference.requestSnapshot(state.snapshotRequest);
        }
    }

    // The image is a host's memory: what it holds counts, the fields that are otherwise constants
    // included.
    void disturbFloats() {
        auto words = std::bit_cast<std::array<uint32_t, sizeof(BroltState<N>) / 4>>(state);
        for (std::size_t i = 0; i < words.size(); ++i) {
            const int offset = static_cast<int>(i) * 4;
            if (!reference.holdsFloat(offset) || !random.oneIn(4))
                continue;
            const float value = std::bit_cast<float>(words[i]) + random.sample() * 0.25F;
            words[i] = std::bit_cast<uint32_t>(value);
            reference.setReal(offset, value);
        }
        state = std::bit_cast<BroltState<N>>(words);
    }

    void resetMeters() {
        Brolt<N, float>::resetMeters(state);
        reference.resetMeters();
    }

    void exchangeRecords() {
        const uint32_t pushes = random.oneIn(3) ? random.below(6) : 0;
        for (uint32_t i = 0; i < pushes; ++i) {
            const Coefficients record = randomRecord(random, ++version);
            queue.push(&record);
            referenceQueue.push(record);
        }
        if (random.oneIn(50)) {
            ASSERT_EQ(queue.discardPending(), referenceQueue.discardPending());
        }
    }

    // Separate, in place, crossed over, both outputs one buffer: whatever starts at the same frame.
    void chooseBuffers() {
        const bool inPlace = random.oneIn(2);
        for (std::size_t c = 0; c < N; ++c) {
            inputBuffer[c] = c;
            outputBuffer[c] = inPlace ? c : random.below(4);
        }
        if (random.oneIn(16))
            inputBuffer.fill(random.below(4));
    }

    Pointers pointersInto(Buffers& buffers) const {
        Pointers pointers;
        for (std::size_t c = 0; c < N; ++c) {
            pointers.in[c] = buffers[inputBuffer[c]].data();
            pointers.out[c] = buffers[outputBuffer[c]].data();
        }
        return pointers;
    }

    void compareBuffers(int32_t used) {
        for (std::size_t b = 0; b < shippedBuffers.size(); ++b) {
            for (std::size_t i = 0; i < static_cast<std::size_t>(used); ++i) {
                ASSERT_TRUE(sameBits(shippedBuffers[b][i], referenceBuffers[b][i]))
                    << "buffer " << b << " frame " << i << ": " << shippedBuffers[b][i]
                    << " instead of " << referenceBuffers[b][i];
            }
        }
    }

    void compareState() {
        ASSERT_EQ(reference.image().size(), sizeof state);
        const std::vector<uint32_t> shipped = wordsOf(state);
        for (std::size_t i = 0; i < shipped.size(); ++i) {
            const int offset = static_cast<int>(i) * 4;
            uint32_t plain = 0;
            std::memcpy(&plain, reference.image().data() + offset, 4);
            const bool same = shipped[i] == plain || (reference.holdsFloat(offset) &&
                                                      sameBits(std::bit_cast<float>(shipped[i]),
                                                               std::bit_cast<float>(plain)));
            ASSERT_TRUE(same) << "state offset " << offset << ": " << std::hex << shipped[i]
                              << " instead of " << plain;
        }
    }

    TestRandom random;
    BroltState<N> state;
    ReferenceBrolt reference;
    QMCoefficientQueue<Coefficients, 5> queue;
    ReferenceQueue<Coefficients> referenceQueue;
    int32_t version = 1;
    Buffers shippedBuffers{};
    Buffers referenceBuffers{};
    std::array<std::size_t, N> inputBuffer{};
    std::array<std::size_t, N> outputBuffer{};
};

template <int N>
void compareManyBlocks() {
    const uint64_t start = environmentNumber("BROLT_IDENTITY_START", defaultStart);
    const uint64_t blocks = environmentNumber("BROLT_IDENTITY_BLOCKS", defaultBlocks);
    ASSERT_NE(start, 0U);
    ASSERT_GT(blocks, 0U);

    const auto comparison = std::make_unique<Comparison<N>>(start);
    for (uint64_t block = 0; block < blocks; ++block) {
        comparison->runBlock();
        if (testing::Test::HasFatalFailure()) {
            FAIL() << "in block " << block << " with BROLT_IDENTITY_START=" << start;
        }
    }
    std::cout << N << " channel(s): " << blocks << " blocks, " << comparison->frames
              << " frames identical, random numbers from " << start << '\n';
}

} // namespace

TEST(BroltIdentity, monoEqualsTheReferenceInEveryBit) {
    compareManyBlocks<1>();
}

TEST(BroltIdentity, stereoEqualsTheReferenceInEveryBit) {
    compareManyBlocks<2>();
}
