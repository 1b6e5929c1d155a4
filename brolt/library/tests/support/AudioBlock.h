// SPDX-License-Identifier: GPL-3.0-or-later
// One process call's worth of audio as a host lays it out: a bus in each direction, buffers between
// guards. Everything the plug-in is handed can be made wrong.
#pragma once

#include "brolt/library/tests/support/GuardedBuffer.h"
#include "brolt/library/tests/support/Vst3.h"

#include <vector>

class AudioBlock {
public:
    /// Silence in, the untouched value in every sample of the output.
    AudioBlock(int channels, int frames);
    AudioBlock(const AudioBlock&) = delete;
    AudioBlock& operator=(const AudioBlock&) = delete;

    /// What a plug-in that writes nothing leaves behind.
    static constexpr float untouched = 123.0F;

    Vst::ProcessData data;
    Vst::AudioBusBuffers inputBus;
    Vst::AudioBusBuffers outputBus;
    std::vector<float*> inputPointers;
    std::vector<float*> outputPointers;

    [[nodiscard]] std::span<float> input(int channel) { return buffer(inputs, channel); }

    [[nodiscard]] std::span<float> output(int channel) { return buffer(outputs, channel); }

    /// Output goes where the input is, as many hosts have it.
    void shareBuffers() { outputPointers = inputPointers; }

    void fill(float value);

    [[nodiscard]] bool guardsAreIntact() const;

    [[nodiscard]] bool inputIs(float value) const { return all(inputs, value); }

    [[nodiscard]] bool outputIs(float value) const { return all(outputs, value); }

    [[nodiscard]] bool outputIsUntouched() const { return outputIs(untouched); }

    [[nodiscard]] bool outputIsFinite() const;

private:
    using Buffers = std::vector<GuardedBuffer>;

    static std::span<float> buffer(Buffers& buffers, int channel) {
        return buffers.at(static_cast<std::size_t>(channel)).samples();
    }

    static bool all(const Buffers& buffers, float value);

    Buffers inputs;
    Buffers outputs;
};
