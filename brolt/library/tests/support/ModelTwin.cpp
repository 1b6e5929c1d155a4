// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/ModelTwin.h"

#include "plugin-model/INoxPlugInType.h"

#include <algorithm>

ModelTwin::ModelTwin(int channels, double sampleRate) {
    host.setSampleRate(&sampleRate);
    instance = group.typeOfIndex(channels - 1)->createAndRecordInstance();
    instance->createProcessingState();
    instance->setProcessingHost(&host);
    reset();
}

ModelTwin::~ModelTwin() {
    instance->setProcessingHost(nullptr);
}

void ModelTwin::set(const char (&id)[5], double plain) {
    // A host speaks in normalised values, and plain ones do not survive that to the last bit.
    const std::int32_t index = instance->indexOfID(fourCharCode(id));
    setNormalised(index, instance->plainToNormalised(index, plain));
}

void ModelTwin::setNormalised(std::int32_t index, double value) {
    instance->setParameterValue(index, instance->normalisedToPlain(index, value));
}

void ModelTwin::reset() {
    const double rate = host.sampleRate();
    instance->setSampleRate(&rate);
    instance->refresh(&host);
    instance->discardPendingCoefficients();
    instance->resetProcessingState();
}

Audio ModelTwin::render(const Audio& input, int blockSize) {
    Audio from = input;
    Audio output = input;
    const auto frames = static_cast<int>(input.at(0).size());
    const auto channels = static_cast<std::int32_t>(input.size());
    for (int at = 0; at < frames; at += blockSize) {
        const int count = std::min(blockSize, frames - at);
        std::vector<float*> inputs;
        std::vector<float*> outputs;
        for (std::size_t c = 0; c < input.size(); ++c) {
            inputs.push_back(from[c].data() + at);
            outputs.push_back(output[c].data() + at);
        }
        instance->process({count, channels, 0, inputs.data()},
                          {count, channels, 0, outputs.data()});
    }
    return output;
}
