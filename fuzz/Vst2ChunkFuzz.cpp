// SPDX-License-Identifier: GPL-3.0-or-later
// Chunks from a VST 2 host, of both byte orders.
#include "QMShell/state/Vst2Chunk.h"
#include "fuzz/support/FuzzedInstance.h"
#include "fuzz/support/InstanceVst2Adapter.h"
#include "fuzz/support/Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedInstance instance;
    InstanceVst2Adapter adapter(instance.plugIn);
    Vst2Chunk chunk(adapter);
    const std::string before = instance.state();
    auto reading = Vst2ChunkReading::ignored;
    runReader(instance, [&] { reading = chunk.set(std::as_bytes(std::span(data, size))); });
    require(reading != Vst2ChunkReading::recordDeclined, "adapted records are taken");
    require(reading == Vst2ChunkReading::entriesApplied || adapter.restored == 0,
            "entries in the place of a record alone");
    if (reading == Vst2ChunkReading::ignored)
        requireEqual(instance.state(), before, "the state after a refusal");
    instance.requireOrder();
    if (reading == Vst2ChunkReading::ignored)
        return 0;

    const std::string now = instance.restorableState();
    require(chunk.set(chunk.get()) == Vst2ChunkReading::recordApplied, "what is written is read");
    requireEqual(instance.restorableState(), now, "the state through a chunk and back");
    return 0;
}
