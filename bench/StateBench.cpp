// SPDX-License-Identifier: GPL-3.0-or-later
//
// What saving, restoring and going back in time cost: of the complete state, with both snapshots
// filled, as a host asks for it.

#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst3Envelope.h"
#include "bench/BenchModel.h"
#include "bench/Benchmarks.h"
#include "plugin-model/snapshots/IQMParameterSnapshots.h"

#include <benchmark/benchmark.h>

namespace {

using QM::SnapshotMode;

class StateBench {
public:
    StateBench() {
        instance->selectSnapshot(0, SnapshotMode::store);
        instance->setParameterValue(1, 200.0);
        instance->selectSnapshot(1, SnapshotMode::store);
        instance->setParameterValue(1, 50.0);
        instance->clearUndoAndRedo();
    }

    ~StateBench() { instance->setProcessingHost(nullptr); }

    StateBench(const StateBench&) = delete;
    StateBench& operator=(const StateBench&) = delete;

    [[nodiscard]] StateMemoryStream save() const {
        StateMemoryStream stream;
        writeVst3Envelope(stream, instance->getStateRecord(StateExtent::complete));
        return stream;
    }

    bool load(StateMemoryStream& stream) {
        const auto record = readVst3Envelope(stream);
        return record && instance->applyStateRecord(*record);
    }

    BenchModel model;
    std::unique_ptr<INoxPlugIn> instance = model.newInstance();
};

void benchSave(benchmark::State& state) {
    const StateBench bench;
    for (auto unused : state) {
        (void)unused;
        const StateMemoryStream saved = bench.save();
        benchmark::DoNotOptimize(saved.bytes().data());
    }
}

void benchLoad(benchmark::State& state) {
    StateBench bench;
    StateMemoryStream saved = bench.save();
    for (auto unused : state) {
        (void)unused;
        saved.seek(0);
        if (!bench.load(saved))
            state.SkipWithError("the state cannot be loaded");
        bench.instance->clearUndoAndRedo();
    }
}

void benchRecall(benchmark::State& state) {
    StateBench bench;
    std::int32_t snapshot = 0;
    for (auto unused : state) {
        (void)unused;
        bench.instance->selectSnapshot(snapshot, SnapshotMode::recallOrStore);
        bench.instance->clearUndoAndRedo();
        snapshot = 1 - snapshot;
    }
}

void benchBlend(benchmark::State& state) {
    StateBench bench;
    float x = 0.25F;
    for (auto unused : state) {
        (void)unused;
        bench.instance->setBlend(x, 0.5F);
        x = 0.5F - x + 0.25F;
    }
}

void benchUndo(benchmark::State& state) {
    StateBench bench;
    bench.instance->beginTouch(1);
    bench.instance->setParameterValue(1, 300.0);
    bench.instance->endTouch(1);
    for (auto unused : state) {
        (void)unused;
        bench.instance->undo();
        bench.instance->redo();
    }
}

} // namespace

void registerStateBenchmarks() {
    benchmark::RegisterBenchmark("BM_StateSave", benchSave);
    benchmark::RegisterBenchmark("BM_StateLoad", benchLoad);
    benchmark::RegisterBenchmark("BM_SnapshotRecall", benchRecall);
    benchmark::RegisterBenchmark("BM_BlendMove", benchBlend);
    benchmark::RegisterBenchmark("BM_UndoAndRedo", benchUndo);
}
