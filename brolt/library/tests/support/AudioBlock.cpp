// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/AudioBlock.h"

#include <algorithm>
#include <cmath>

AudioBlock::AudioBlock(int channels, int frames) {
    for (int c = 0; c < channels; ++c) {
        inputs.emplace_back(static_cast<std::size_t>(frames), 0.0F);
        outputs.emplace_back(static_cast<std::size_t>(frames), untouched);
    }
    for (std::size_t c = 0; c < inputs.size(); ++c) {
        inputPointers.push_back(inputs[c].samples().data());
        outputPointers.push_back(outputs[c].samples().data());
    }
    inputBus.numChannels = channels;
    inputBus.channelBuffers32 = inputPointers.data();
    outputBus.numChannels = channels;
    outputBus.channelBuffers32 = outputPointers.data();
    data.symbolicSampleSize = Vst::kSample32;
    data.numSamples = frames;
    data.numInputs = 1;
    data.numOutputs = 1;
    data.inputs = &inputBus;
    data.outputs = &outputBus;
}

void AudioBlock::fill(float value) {
    for (GuardedBuffer& channel : inputs) {
        const std::span<float> samples = channel.samples();
        std::fill(samples.begin(), samples.end(), value);
    }
}

bool AudioBlock::guardsAreIntact() const {
    const auto intact = [](const GuardedBuffer& channel) { return channel.isIntact(); };
    return std::all_of(inputs.begin(), inputs.end(), intact) &&
           std::all_of(outputs.begin(), outputs.end(), intact);
}

bool AudioBlock::all(const Buffers& buffers, float value) {
    return std::all_of(buffers.begin(), buffers.end(), [&](const GuardedBuffer& channel) {
        const std::span<const float> samples = channel.samples();
        return std::all_of(samples.begin(), samples.end(),
                           [&](float sample) { return sample == value; });
    });
}

bool AudioBlock::outputIsFinite() const {
    return std::all_of(outputs.begin(), outputs.end(), [](const GuardedBuffer& channel) {
        const std::span<const float> samples = channel.samples();
        return std::all_of(samples.begin(), samples.end(),
                           [](float sample) { return std::isfinite(sample); });
    });
}
