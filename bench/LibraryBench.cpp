// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the VST3 face costs: a block over the model's own, loading the library, an instance. Blocks
// are short, so that what comes on top of the processing shows.

#include "bench/BenchLibrary.h"
#include "bench/BenchModel.h"
#include "bench/Benchmarks.h"

#include <benchmark/benchmark.h>
#include <pluginterfaces/vst/ivstaudioprocessor.h>
#include <pluginterfaces/vst/ivstprocesscontext.h>

#include <array>

using namespace Steinberg;

namespace {

constexpr int32 blockFrames = 16;
constexpr double sampleRate = 44100.0;

/// A stereo block whose samples are neither silent nor loud.
struct StereoBlock {
    StereoBlock() {
        for (std::size_t i = 0; i < left.size(); ++i)
            left[i] = right[i] = i % 2 == 0 ? 0.25F : -0.25F;
    }

    std::array<float, blockFrames> left{};
    std::array<float, blockFrames> right{};
    std::array<float, blockFrames> leftOut{};
    std::array<float, blockFrames> rightOut{};
    std::array<float*, 2> inputs{left.data(), right.data()};
    std::array<float*, 2> outputs{leftOut.data(), rightOut.data()};
};

void benchModelBlock(benchmark::State& state) {
    BenchModel model;
    const auto instance = model.newInstance();
    StereoBlock block;
    const NoxProcessBlock input{blockFrames, 2, 0, block.inputs.data()};
    const NoxProcessBlock output{blockFrames, 2, 0, block.outputs.data()};
    for (auto unused : state) {
        (void)unused;
        instance->process(input, output);
        benchmark::ClobberMemory();
    }
    instance->setProcessingHost(nullptr);
}

void benchVst3Block(benchmark::State& state) {
    const auto module = loadLibrary();
    LibraryPlugIn plugIn(module);
    Vst::IAudioProcessor& processor = plugIn.start(sampleRate, blockFrames);
    StereoBlock block;
    Vst::AudioBusBuffers in;
    Vst::AudioBusBuffers out;
    in.numChannels = out.numChannels = 2;
    in.channelBuffers32 = block.inputs.data();
    out.channelBuffers32 = block.outputs.data();
    Vst::ProcessContext time{};
    time.state = Vst::ProcessContext::kTempoValid;
    time.tempo = 120.0;
    Vst::ProcessData data;
    data.processMode = Vst::kRealtime;
    data.symbolicSampleSize = Vst::kSample32;
    data.numSamples = blockFrames;
    data.numInputs = data.numOutputs = 1;
    data.inputs = &in;
    data.outputs = &out;
    data.processContext = &time;
    for (auto unused : state) {
        (void)unused;
        processor.process(data);
        benchmark::ClobberMemory();
    }
}

/// Loading, the first instance, and both gone again: the toolkit begins and ends with them.
void benchLibraryOpen(benchmark::State& state) {
    for (auto unused : state) {
        (void)unused;
        const auto module = loadLibrary();
        const LibraryPlugIn plugIn(module);
    }
}

void benchFurtherInstance(benchmark::State& state) {
    const auto module = loadLibrary();
    const LibraryPlugIn first(module);
    for (auto unused : state) {
        (void)unused;
        const LibraryPlugIn further(module);
    }
}

} // namespace

void registerLibraryBenchmarks() {
    benchmark::RegisterBenchmark("BM_Block16/model", benchModelBlock);
    benchmark::RegisterBenchmark("BM_Block16/vst3", benchVst3Block);
    benchmark::RegisterBenchmark("BM_LibraryOpen", benchLibraryOpen)->UseRealTime();
    benchmark::RegisterBenchmark("BM_FurtherInstance", benchFurtherInstance)->UseRealTime();
}
