// SPDX-License-Identifier: GPL-3.0-or-later
// State from a VST3 host: the bank that comes first, the envelope, the record in it.
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst3State.h"
#include "fuzz/support/FuzzedInstance.h"
#include "fuzz/support/InstanceSink.h"
#include "fuzz/support/Require.h"

#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedInstance instance;
    InstanceSink sink(instance.plugIn);
    StateMemoryStream stream(std::as_bytes(std::span(data, size)));
    const std::string before = instance.state();
    auto reading = Vst3StateReading::refused;
    try {
        runReader(instance, [&] { reading = readVst3State(stream, instance.plugIn, {sink}); });
    } catch (const std::length_error&) {
        require(size >= 8 && data[7] >= 0x80, "a length error for a negative length alone");
    }
    if (reading == Vst3StateReading::refused || reading == Vst3StateReading::recordDeclined)
        requireEqual(instance.state(), before, "the state after a refusal");
    require(reading == Vst3StateReading::bankImported || sink.entries == 0,
            "entries from a bank alone");
    instance.requireOrder();
    if (reading != Vst3StateReading::recordApplied)
        return 0;

    StateMemoryStream saved;
    require(writeVst3State(saved, instance.plugIn) && saved.seek(0), "the state is written");
    FuzzedInstance other;
    require(readVst3State(saved, other.plugIn, {sink}) == Vst3StateReading::recordApplied,
            "what is written is read");
    return 0;
}
