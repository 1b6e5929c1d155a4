// SPDX-License-Identifier: GPL-3.0-or-later
//
// The bare chain of one rotation with its renormalisation, as the formula has it and nothing else:
// what a processor with two of them side by side can at best come down to in the plain order of
// operations.

#include "bench/Benchmarks.h"
#include "brolt/signal/SineOscillator.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

void benchRotationChain(benchmark::State& state) {
    constexpr int frames = 512;
    constexpr float s = 0.9999F;
    const SineOscillator constants;
    float sine = 0.0F;
    float cosine = 1.0F;
    float target = constants.normTarget;
    float half = constants.normScale;
    float step = s;
    float other = std::sqrt(1.0F - s * s);
    // From here on the compiler knows none of them.
    benchmark::DoNotOptimize(target);
    benchmark::DoNotOptimize(half);
    benchmark::DoNotOptimize(step);
    benchmark::DoNotOptimize(other);
    for (auto unused : state) {
        (void)unused;
        for (int i = 0; i < frames; ++i) {
            const float x = other * cosine + step * sine;
            const float y = step * cosine - other * sine;
            const float correction = (target - (x * x + y * y)) * half;
            sine = x * correction;
            cosine = y * correction;
        }
        benchmark::DoNotOptimize(sine);
        benchmark::DoNotOptimize(cosine);
    }
    state.SetItemsProcessed(state.iterations() * frames);
}

} // namespace

void registerRotationBenchmark() {
    benchmark::RegisterBenchmark("BM_RotationChain", benchRotationChain);
}
