// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the processor's benchmarks run on: some seconds of input, and the records.

#pragma once

#include "brolt/signal/Coefficients.h"

#include <array>
#include <cstdint>
#include <vector>

enum class Material {
    drums,     ///< decaying bursts of noise, five a second
    silence,   ///< zeros
    subnormal, ///< numbers below the smallest normal one
};

class BenchMaterial {
public:
    explicit BenchMaterial(Material kind);

    /// Walks through the material in blocks of `frames` and begins again at its end: the inputs of
    /// the next block.
    const float* const* nextInputs(int32_t frames);

    /// Outputs for a block of any length up to the material's.
    float* const* outputs() { return outputPointers.data(); }

    static constexpr int32_t length = 1 << 16;

private:
    std::array<std::vector<float>, 2> input;
    std::array<std::vector<float>, 2> output;
    std::array<const float*, 2> inputPointers{};
    std::array<float*, 2> outputPointers{};
    int32_t position = 0;
};

/// The default settings, and the same 6 dB louder, one version: switching between them keeps the
/// output gain moving.
Coefficients benchRecord();
Coefficients louderBenchRecord();
