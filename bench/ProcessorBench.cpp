// SPDX-License-Identifier: GPL-3.0-or-later
//
// The processor: the plain reference of the tests, the shipped one over its block sizes, channels,
// gains and materials, and the shipped one's plain form.

#include "bench/BenchMaterial.h"
#include "bench/Benchmarks.h"
#include "brolt/signal/Brolt.h"
#include "brolt/signal/tests/reference/ReferenceBrolt.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

enum class Gains { settled, moving };

struct Case {
    int32_t frames;
    Gains gains;
    Material material;
};

/// Which record a block gets: moving gains change their target every block.
class Records {
public:
    explicit Records(Gains gains)
        : moving(gains == Gains::moving) {}

    const Coefficients& next() {
        louderNext = moving && !louderNext;
        return louderNext ? louder : usual;
    }

private:
    Coefficients usual = benchRecord();
    Coefficients louder = louderBenchRecord();
    bool moving;
    bool louderNext = false;
};

/// Calls processBlock(inputs, outputs, record) for block after block; a frame is an item.
template <typename ProcessBlock>
void runBlocks(benchmark::State& state, const Case& what, ProcessBlock processBlock) {
    BenchMaterial material(what.material);
    Records records(what.gains);
    for (auto unused : state) {
        (void)unused;
        processBlock(material.nextInputs(what.frames), material.outputs(), records.next());
    }
    state.SetItemsProcessed(state.iterations() * what.frames);
}

template <int N>
void benchShipped(benchmark::State& state, const Case& what) {
    BroltState<N> processor;
    runBlocks(state, what, [&](auto inputs, auto outputs, const Coefficients& record) {
        Brolt<N, float>::process(processor, inputs, outputs, record, what.frames);
    });
}

template <int N>
void benchPlain(benchmark::State& state, const Case& what) {
    BroltState<N> processor;
    runBlocks(state, what, [&](auto inputs, auto outputs, const Coefficients& record) {
        Brolt<N, float>::processPlainly(processor, inputs, outputs, record, what.frames);
    });
}

template <int N>
void benchReference(benchmark::State& state, const Case& what) {
    ReferenceBrolt processor(N);
    runBlocks(state, what, [&](auto inputs, auto outputs, const Coefficients& record) {
        processor.process(inputs, outputs, &record, what.frames);
    });
}

std::string nameOf(const std::string& what, int channels, const Case& which) {
    const char* material = which.material == Material::drums     ? "drums"
                           : which.material == Material::silence ? "silence"
                                                                 : "subnormal";
    return what + (channels == 1 ? "/mono/" : "/stereo/") + std::to_string(which.frames) +
           (which.gains == Gains::moving ? "/moving/" : "/settled/") + material;
}

void registerShipped(const Case& which) {
    benchmark::RegisterBenchmark(nameOf("BM_Processor", 1, which).c_str(), benchShipped<1>, which);
    benchmark::RegisterBenchmark(nameOf("BM_Processor", 2, which).c_str(), benchShipped<2>, which);
}

} // namespace

void registerProcessorBenchmarks() {
    constexpr int32_t usualBlock = 512;
    const Case usual{usualBlock, Gains::settled, Material::drums};
    benchmark::RegisterBenchmark(nameOf("BM_ProcessorReference", 1, usual).c_str(),
                                 benchReference<1>, usual);
    benchmark::RegisterBenchmark(nameOf("BM_ProcessorReference", 2, usual).c_str(),
                                 benchReference<2>, usual);
    benchmark::RegisterBenchmark(nameOf("BM_ProcessorPlain", 1, usual).c_str(), benchPlain<1>,
                                 usual);
    benchmark::RegisterBenchmark(nameOf("BM_ProcessorPlain", 2, usual).c_str(), benchPlain<2>,
                                 usual);
    for (const int32_t frames : {32, 64, 128, 512, 4096})
        registerShipped({frames, Gains::settled, Material::drums});
    registerShipped({usualBlock, Gains::moving, Material::drums});
    registerShipped({usualBlock, Gains::settled, Material::silence});
    registerShipped({usualBlock, Gains::settled, Material::subnormal});
}
