// SPDX-License-Identifier: GPL-3.0-or-later
//
// The benchmarks, by subject. Each function registers its own.

#pragma once

void registerProcessorBenchmarks();
void registerRotationBenchmark();
void registerControlBenchmarks();
void registerStateBenchmarks();
void registerLibraryBenchmarks();
void registerEditorBenchmarks();
void registerDisplayBenchmarks();
