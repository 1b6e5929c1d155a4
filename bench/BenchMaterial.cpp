// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BenchMaterial.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <bit>
#include <cmath>

namespace {

constexpr int32_t framesPerBurst = 8820;
constexpr float burstDecayFrames = 2000.0F;

/// -1 to 1.
float noise(uint32_t& seed) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<float>(static_cast<int32_t>(seed)) * 0x1p-31F;
}

float sampleOf(Material kind, int32_t frame, uint32_t& seed) {
    const float random = noise(seed);
    switch (kind) {
    case Material::drums:
        return random * std::exp(-static_cast<float>(frame % framesPerBurst) / burstDecayFrames);
    case Material::subnormal:
        return std::bit_cast<float>(1U + seed % 0x7FFFFFU);
    default:
        return 0.0F;
    }
}

Coefficients recordWithGain(float decibels) {
    BroltParameters parameters = defaultParameters();
    parameters.outputGain = decibels;
    return recordOf(parameters);
}

} // namespace

BenchMaterial::BenchMaterial(Material kind) {
    uint32_t seed = 1;
    for (std::size_t c = 0; c < input.size(); ++c) {
        input[c].resize(length);
        for (int32_t i = 0; i < length; ++i)
            input[c][static_cast<std::size_t>(i)] = sampleOf(kind, i, seed);
        output[c].resize(length);
        outputPointers[c] = output[c].data();
    }
}

const float* const* BenchMaterial::nextInputs(int32_t frames) {
    if (position + frames > length)
        position = 0;
    for (std::size_t c = 0; c < input.size(); ++c)
        inputPointers[c] = input[c].data() + position;
    position += frames;
    return inputPointers.data();
}

Coefficients benchRecord() {
    return recordWithGain(0.0F);
}

Coefficients louderBenchRecord() {
    return recordWithGain(6.0F);
}
