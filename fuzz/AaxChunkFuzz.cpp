// SPDX-License-Identifier: GPL-3.0-or-later
// Chunks from an AAX host: set and compared.
#include "QMShell/state/AaxChunk.h"
#include "QMShell/state/IAaxChunkAdapter.h"
#include "fuzz/support/FuzzedInstance.h"
#include "fuzz/support/Require.h"

namespace {

class CountingAdapter : public IAaxChunkAdapter {
public:
    explicit CountingAdapter(QMBrolt_PlugIn& instance)
        : plugIn(instance) {}

    int told = 0;

    [[nodiscard]] INoxPlugInState* chunkInstance() const override { return &plugIn; }

    void markParametersChanged() override {}

    [[nodiscard]] std::int32_t parameterCount() const override { return plugIn.parameterCount(); }

    void tellHostParameterValue(std::int32_t) override { ++told; }

private:
    QMBrolt_PlugIn& plugIn;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    FuzzedInstance instance;
    CountingAdapter adapter(instance.plugIn);
    const std::string before = instance.state();
    static_cast<void>(compareAaxChunk(AaxChunks::state, bytes, instance.plugIn));
    requireEqual(instance.state(), before, "the state after a comparison");

    auto reading = AaxChunkReading::ignored;
    runReader(instance, [&] { reading = setAaxChunk(AaxChunks::state, bytes, adapter); });
    if (reading != AaxChunkReading::applied)
        requireEqual(instance.state(), before, "the state after a refusal");
    require(adapter.told == (reading == AaxChunkReading::applied ? adapter.parameterCount() : 0),
            "the host hears of every parameter, or of none");
    instance.requireOrder();

    const auto chunk = getAaxChunk(AaxChunks::state, instance.plugIn);
    require(chunk && chunk->data.size() == aaxChunkSize(AaxChunks::state, instance.plugIn),
            "the chunk has the size that was told");
    require(compareAaxChunk(AaxChunks::state, chunk->data, instance.plugIn) ==
                AaxChunkComparison::equal,
            "the state equals itself");
    return 0;
}
