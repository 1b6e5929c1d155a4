// SPDX-License-Identifier: GPL-3.0-or-later
//
// What most tests of the processor need: parameter values and records to start from, a processor
// with its buffers, and the words of an image.

#pragma once

#include "brolt/signal/Brolt.h"
#include "brolt/signal/CoefficientComputation.h"
#include "brolt/signal/tests/TestRandom.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

/// The product's default settings, with version 2 as the first record in a session has.
BroltParameters defaultParameters();
Coefficients recordOf(const BroltParameters& parameters, int32_t version = 2);

/// Any setting, here and there outside the product's ranges.
BroltParameters randomParameters(TestRandom& random);

/// A record for tests that want to see the stages by themselves: rates and ballistics that are
/// powers of two, all gains 1, oscillators standing still.
Coefficients simpleRecord();

template <typename Image>
std::vector<uint32_t> wordsOf(const Image& image) {
    std::vector<uint32_t> words(sizeof(Image) / sizeof(uint32_t));
    std::memcpy(words.data(), &image, sizeof(Image));
    return words;
}

/// A processor that owns its state and runs on vectors.
template <int N>
struct TestProcessor {
    typename Brolt<N, float>::State state;

    TestProcessor() { Brolt<N, float>::initialiseState(state); }

    /// One block. Every channel has the same length; answers the outputs.
    std::array<std::vector<float>, N> run(const std::array<std::vector<float>, N>& input,
                                          const Coefficients& record) {
        std::array<std::vector<float>, N> output;
        std::array<const float*, N> in{};
        std::array<float*, N> out{};
        for (std::size_t c = 0; c < N; ++c) {
            output[c].resize(input[c].size());
            in[c] = input[c].data();
            out[c] = output[c].data();
        }
        Brolt<N, float>::process(state, in.data(), out.data(), record,
                                 static_cast<int32_t>(input[0].size()));
        return output;
    }

    /// One block of a constant on every channel; answers the first output.
    std::vector<float> hold(float value, int frames, const Coefficients& record) {
        std::array<std::vector<float>, N> input;
        for (std::vector<float>& channel : input)
            channel.assign(static_cast<std::size_t>(frames), value);
        return run(input, record)[0];
    }

    std::array<float, 4 + 3 * N> snapshot() const {
        std::array<float, 4 + 3 * N> values{};
        Brolt<N, float>::copySnapshot(state, values.data());
        return values;
    }
};
