// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the control side costs: a record, a change on its way to the queue, a snapshot, an instance.

#include "bench/BenchModel.h"
#include "bench/Benchmarks.h"
#include "brolt/signal/Brolt.h"
#include "brolt/signal/tests/BroltTestKit.h"

#include <array>
#include <benchmark/benchmark.h>

namespace {

void benchCoefficients(benchmark::State& state) {
    BroltParameters parameters = defaultParameters();
    Coefficients record;
    for (auto unused : state) {
        (void)unused;
        benchmark::DoNotOptimize(parameters);
        computeCoefficients(record, parameters);
        benchmark::DoNotOptimize(record);
    }
}

void benchSnapshot(benchmark::State& state) {
    BroltState<2> processor;
    std::array<float, BroltState<2>::snapshotLength> snapshot{};
    for (auto unused : state) {
        (void)unused;
        Brolt<2, float>::copySnapshot(processor, snapshot.data());
        benchmark::DoNotOptimize(snapshot);
    }
}

void benchParameterChange(benchmark::State& state) {
    constexpr std::int32_t outputGain = 14;
    BenchModel model;
    const auto instance = model.newInstance();
    double decibels = 0.0;
    for (auto unused : state) {
        (void)unused;
        decibels = decibels > 0.0 ? 0.0 : 1.0;
        instance->setParameterValue(outputGain, decibels);
    }
    instance->setProcessingHost(nullptr);
}

void benchInstance(benchmark::State& state) {
    BenchModel model;
    for (auto unused : state) {
        (void)unused;
        const auto instance = model.newInstance();
        benchmark::DoNotOptimize(instance.get());
        instance->setProcessingHost(nullptr);
    }
}

} // namespace

void registerControlBenchmarks() {
    benchmark::RegisterBenchmark("BM_ComputeCoefficients", benchCoefficients);
    benchmark::RegisterBenchmark("BM_ParameterChangeToQueue", benchParameterChange);
    benchmark::RegisterBenchmark("BM_SnapshotCopy", benchSnapshot);
    benchmark::RegisterBenchmark("BM_InstanceCreation", benchInstance);
}
