// SPDX-License-Identifier: GPL-3.0-or-later
//
// brolt-bench: how long the pieces take. scripts/bench runs it many times over and prints ratios.

#include "bench/Benchmarks.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    registerProcessorBenchmarks();
    registerRotationBenchmark();
    registerControlBenchmarks();
    registerStateBenchmarks();
    registerLibraryBenchmarks();
    registerEditorBenchmarks();
    registerDisplayBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
