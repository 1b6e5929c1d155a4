// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3Renderer.h"

#include "plugin-model/INoxPlugIn.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/state/InstanceSettings.h"
#include "tools/brolt-host/state/StateFile.h"
#include "tools/brolt-host/vst3/Vst3Result.h"
#include "tools/brolt-host/vst3/Vst3StateStream.h"

using namespace Steinberg;

namespace {

constexpr double tempo = 120.0; // beats a minute

int32 processModeOf(Vst3Mode mode) {
    return mode == Vst3Mode::offline ? Vst::kOffline : Vst::kRealtime;
}

Vst::AudioBusBuffers busOf(float** channels, int count) {
    Vst::AudioBusBuffers bus;
    bus.numChannels = count;
    bus.channelBuffers32 = channels;
    return bus;
}

} // namespace

Vst3Renderer::Vst3Renderer(const Vst3EffectClass& effect, HostMessages& hostMessages,
                           Vst3Mode processMode, int channels, double sampleRate)
    : messages(hostMessages)
    , instance(effect)
    , mode(processMode)
    , channelCount(channels) {
    context.state = Vst::ProcessContext::kPlaying | Vst::ProcessContext::kTempoValid |
                    Vst::ProcessContext::kContTimeValid;
    context.sampleRate = sampleRate;
    context.tempo = tempo;
}

Vst3Renderer::Vst3Renderer(const Vst3EffectClass& effect, HostMessages& hostMessages,
                           Vst3Mode processMode, int channels, double sampleRate,
                           const RenderPlan& plan)
    : Vst3Renderer(effect, hostMessages, processMode, channels, sampleRate) {
    instance.arrangeBuses(channels);
    setUp(plan.blockSize);
    readParameterIDs();
    restoreSettings(plan);
    activate();
}

Vst3Renderer::~Vst3Renderer() {
    instance.observeEdits({}); // the members that edits go to are about to go
    if (isProcessing)
        instance.processor().setProcessing(0);
    if (isActive)
        instance.component().setActive(0);
}

void Vst3Renderer::setUp(std::int32_t blockSize) {
    for (const Vst::BusDirection direction : {Vst::kInput, Vst::kOutput})
        requireOk(instance.component().activateBus(Vst::kAudio, direction, 0, 1), "activateBus");
    Vst::ProcessSetup setup{processModeOf(mode), Vst::kSample32, blockSize, context.sampleRate};
    requireOk(instance.processor().setupProcessing(setup), "setupProcessing");
}

void Vst3Renderer::readParameterIDs() {
    Vst::IEditController& controller = instance.controller();
    const int32 count = controller.getParameterCount();
    for (int32 i = 0; i < count; ++i) {
        Vst::ParameterInfo info{};
        requireOk(controller.getParameterInfo(i, info), "getParameterInfo");
        ids.push_back(info.id);
    }
    changes.setMaxParameters(count);
}

void Vst3Renderer::restoreSettings(const RenderPlan& plan) {
    if (plan.records.empty() && plan.settings.empty())
        return;
    ProductModel product;
    const auto model = createInstance(product, channelCount, plan);
    Vst3StateStream state(
        encodeState(model->getStateRecord(StateExtent::complete), StateForm::vst3));
    requireOk(instance.component().setState(&state), "setState");
    state.rewind();
    requireOkIfImplemented(instance.controller().setComponentState(&state), "setComponentState");

    // A state says nothing of the bypass, which belongs to the session.
    for (const ParameterSetting& setting : plan.settings) {
        if (model->isBypassParameterIndex(setting.index))
            setThroughController(setting.index, setting.value);
    }
}

void Vst3Renderer::activate() {
    requireOk(instance.component().setActive(1), "setActive");
    isActive = true;
    requireOkIfImplemented(instance.processor().setProcessing(1), "setProcessing");
    isProcessing = true;
    lastBlock = Clock::now();
}

Vst::ParamID Vst3Renderer::idOf(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= ids.size()) {
        throw HostError("the VST3 plug-in has " + std::to_string(ids.size()) +
                        " parameters and none of index " + std::to_string(index));
    }
    return ids[static_cast<std::size_t>(index)];
}

void Vst3Renderer::setThroughController(std::int32_t index, double value) {
    Vst::IEditController& controller = instance.controller();
    const Vst::ParamID id = idOf(index);
    requireOk(controller.setParamNormalized(id, controller.plainParamToNormalized(id, value)),
              "setParamNormalized");
}

void Vst3Renderer::setParameter(std::int32_t index, double value) {
    if (mode == Vst3Mode::realtime) {
        setThroughController(index, value);
        return;
    }
    const Vst::ParamID id = idOf(index);
    int32 position = 0;
    Vst::IParamValueQueue* const queue = changes.addParameterData(id, position);
    constexpr int32 firstFrame = 0;
    queue->addPoint(firstFrame, instance.controller().plainParamToNormalized(id, value), position);
}

double Vst3Renderer::parameter(std::int32_t index) const {
    Vst::IEditController& controller = instance.controller();
    const Vst::ParamID id = idOf(index);
    return controller.normalizedParamToPlain(id, controller.getParamNormalized(id));
}

void Vst3Renderer::observeEdits(Vst3ComponentHandler::Observer observer) {
    instance.observeEdits([this, tell = std::move(observer)](const Vst3Edit& edit) {
        if (edit.kind == Vst3Edit::Kind::perform) {
            const std::lock_guard lock(editsMutex);
            editedValues.push_back(edit);
        }
        if (tell)
            tell(edit);
    });
}

void Vst3Renderer::takeEditedValues() {
    const std::lock_guard lock(editsMutex);
    for (const Vst3Edit& edit : editedValues) {
        int32 position = 0;
        constexpr int32 firstFrame = 0;
        if (Vst::IParamValueQueue* const queue = changes.addParameterData(edit.id, position))
            queue->addPoint(firstFrame, edit.value, position);
    }
    editedValues.clear();
}

void Vst3Renderer::process(float** inputs, float** outputs, std::int32_t frames) {
    takeEditedValues();
    Vst::AudioBusBuffers input = busOf(inputs, channelCount);
    Vst::AudioBusBuffers output = busOf(outputs, channelCount);
    Vst::ProcessData data;
    data.processMode = processModeOf(mode);
    data.symbolicSampleSize = Vst::kSample32;
    data.numSamples = frames;
    data.numInputs = 1;
    data.numOutputs = 1;
    data.inputs = &input;
    data.outputs = &output;
    data.inputParameterChanges = &changes;
    data.outputParameterChanges = &ignoredChanges;
    data.processContext = &context;
    requireOk(instance.processor().process(data), "process");

    lastBlock = Clock::now();
    context.projectTimeSamples += frames;
    context.continousTimeSamples += frames;
    changes.clearQueue();
    ignoredChanges.clearQueue();
}

void Vst3Renderer::betweenBlocks() {
    // A plug-in whose timer finds that nothing was processed for a tenth of a second takes it for
    // the end of the music and forgets its tail. After a stop of ours (a slow disk, a suspended
    // program) its timers therefore wait until the next block has run.
    constexpr std::chrono::milliseconds stop(50);
    if (Clock::now() - lastBlock < stop)
        messages.deliverPending();
}
