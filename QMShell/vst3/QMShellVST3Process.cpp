// SPDX-License-Identifier: GPL-3.0-or-later
// Processing of the VST3 plug-in.

#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "plugin-model/INoxPlugIn.h"

#include <pluginterfaces/vst/ivstparameterchanges.h>
#include <pluginterfaces/vst/ivstprocesscontext.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

using namespace Steinberg;
using namespace Steinberg::Vst;

namespace {

constexpr int32 stereo = 2;

using ChannelPointers = std::array<float*, 3>;

/// Channel pointers of a block for the instance, a sidechain's first channel behind the input's.
struct Block {
    ChannelPointers inputs{};
    ChannelPointers outputs{};
    int32 channels = 0; ///< 0 where a pointer is missing that should be there
};

/// A bus's channel; null where the host has left it out.
float* channelOf(const AudioBusBuffers& bus, int32 channel) {
    return bus.channelBuffers32 != nullptr && channel < bus.numChannels
               ? bus.channelBuffers32[channel]
               : nullptr;
}

Block blockOf(const ProcessData& data) {
    if (data.inputs == nullptr)
        return {};
    const AudioBusBuffers& input = data.inputs[0];
    const AudioBusBuffers& output = data.outputs[0];
    const int32 channels = input.numChannels == stereo ? stereo : 1;
    Block block;
    block.channels = channels;
    for (int32 c = 0; c < channels; ++c) {
        const auto at = static_cast<std::size_t>(c);
        block.inputs[at] = channelOf(input, c);
        block.outputs[at] = channelOf(output, c);
        if (block.inputs[at] == nullptr || block.outputs[at] == nullptr)
            block.channels = 0;
    }
    if (data.numInputs > 1)
        block.inputs[static_cast<std::size_t>(channels)] = channelOf(data.inputs[1], 0);
    return block;
}

/// Silence from the given channel of the main output on.
void clearOutputs(const ProcessData& data, int32 firstChannel) {
    const AudioBusBuffers& output = data.outputs[0];
    for (int32 c = firstChannel; c < output.numChannels; ++c) {
        if (float* const channel = channelOf(output, c))
            std::fill_n(channel, data.numSamples, 0.0F);
    }
}

void clearSilenceFlags(const ProcessData& data) {
    for (int32 bus = 0; bus < data.numOutputs; ++bus)
        data.outputs[bus].silenceFlags = 0;
}

bool hasAudio(const ProcessData& data) {
    return data.numInputs > 0 && data.numOutputs > 0 && data.numSamples > 0 &&
           data.outputs != nullptr;
}

} // namespace

tresult PLUGIN_API QMShellVST3::process(ProcessData& data) {
    if (data.symbolicSampleSize != kSample32)
        return kResultFalse;
    if (data.processContext != nullptr &&
        (data.processContext->state & ProcessContext::kTempoValid) != 0)
        tempo.store(data.processContext->tempo, std::memory_order_relaxed);
    if (!hasAudio(data))
        return kResultOk;
    if (processMode.load(std::memory_order_relaxed) == kOffline)
        applyOfflineChanges(data.inputParameterChanges);

    Block block = blockOf(data);
    const NoxProcessBlock input{data.numSamples, block.channels, 0, block.inputs.data()};
    const NoxProcessBlock output{data.numSamples, block.channels, 0, block.outputs.data()};
    // What the instance does not write must not stay as it was: it would be heard.
    clearOutputs(data, hosted.process(input, output));
    clearSilenceFlags(data);
    return kResultOk;
}

void QMShellVST3::applyOfflineChanges(IParameterChanges* changes) noexcept {
    if (changes == nullptr)
        return;
    guarded("QMShellVST3::process", false, [&] {
        if (hosted.get() != nullptr)
            applyLastPoints(*changes);
        return true;
    });
}

void QMShellVST3::applyLastPoints(IParameterChanges& changes) {
    for (int32 queue = 0; queue < changes.getParameterCount(); ++queue) {
        IParamValueQueue* const points = changes.getParameterData(queue);
        int32 offset = 0;
        ParamValue normalised = 0.0;
        if (points == nullptr || points->getPointCount() <= 0 ||
            points->getPoint(points->getPointCount() - 1, offset, normalised) != kResultOk)
            continue;
        const int32 index = indexOf(points->getParameterId());
        if (index < 0 || std::isnan(normalised))
            continue;
        const double plain = hosted.get()->normalisedToPlain(index, normalised);
        hosted.get()->setParameterValue(index, plain);
        std::printf("QMShellVST3::process : %08d -> %g\n",
                    static_cast<int>(points->getParameterId()), plain);
    }
}
