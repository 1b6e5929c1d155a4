// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"

#include "plugin-model/NumberText.h"

#include <pluginterfaces/base/funknownimpl.h>
#include <pluginterfaces/base/ibstream.h>
#include <pluginterfaces/vst/ivstaudioprocessor.h>
#include <pluginterfaces/vst/ivstcomponent.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>
#include <pluginterfaces/vst/ivstmessage.h>
#include <pluginterfaces/vst/ivstparameterchanges.h>
#include <pluginterfaces/vst/ivstprocesscontext.h>

#include <algorithm>
#include <cstring>

using namespace Steinberg;

namespace {

constexpr int32 parameterCount = 15;
constexpr Vst::ParamID firstID = 100;
constexpr double maximum = 100.0;

const VST3::UID componentID(1, 2, 3, 4);
const VST3::UID controllerID(5, 6, 7, 8);

/// Byte by byte: identifiers come from anywhere in memory.
bool isSame(const char* id, const TUID other) {
    return std::memcmp(id, other, sizeof(TUID)) == 0;
}

class Counted {
public:
    explicit Counted(FakeVst3PlugIn& owner)
        : plugIn(owner) {
        ++plugIn.livingObjects;
    }

    ~Counted() { --plugIn.livingObjects; }

    FakeVst3PlugIn& plugIn;
};

using ControllerBase = U::Implements<U::Directly<Vst::IEditController, Vst::IConnectionPoint>>;

class FakeController : public ControllerBase, private Counted {
public:
    explicit FakeController(FakeVst3PlugIn& owner)
        : Counted(owner) {}

    tresult PLUGIN_API initialize(FUnknown*) override {
        return plugIn.answer("controller initialize");
    }

    tresult PLUGIN_API terminate() override { return plugIn.answer("controller terminate"); }

    tresult PLUGIN_API setComponentState(IBStream*) override {
        return plugIn.answer("setComponentState");
    }

    tresult PLUGIN_API setState(IBStream*) override { return kResultFalse; }

    tresult PLUGIN_API getState(IBStream*) override { return kResultFalse; }

    int32 PLUGIN_API getParameterCount() override { return parameterCount; }

    tresult PLUGIN_API getParameterInfo(int32 index, Vst::ParameterInfo& info) override {
        info.id = firstID + static_cast<Vst::ParamID>(index);
        return plugIn.refused == "getParameterInfo" ? kResultFalse : kResultOk;
    }

    tresult PLUGIN_API getParamStringByValue(Vst::ParamID, double, Vst::String128) override {
        return kResultFalse;
    }

    tresult PLUGIN_API getParamValueByString(Vst::ParamID, Vst::TChar*, double&) override {
        return kResultFalse;
    }

    double PLUGIN_API normalizedParamToPlain(Vst::ParamID, double value) override {
        return value * maximum;
    }

    double PLUGIN_API plainParamToNormalized(Vst::ParamID, double value) override {
        return value / maximum;
    }

    double PLUGIN_API getParamNormalized(Vst::ParamID) override { return lastValue; }

    tresult PLUGIN_API setParamNormalized(Vst::ParamID id, double value) override {
        lastValue = value;
        return plugIn.answer("setParamNormalized",
                             std::to_string(id) + " " + QM::numberText(value));
    }

    tresult PLUGIN_API setComponentHandler(Vst::IComponentHandler* handler) override {
        plugIn.handler = handler;
        return plugIn.answer("setComponentHandler", handler != nullptr ? "some" : "none");
    }

    IPlugView* PLUGIN_API createView(FIDString) override {
        return plugIn.makeView ? plugIn.makeView() : nullptr;
    }

    tresult PLUGIN_API connect(Vst::IConnectionPoint*) override {
        return plugIn.answer("controller connect");
    }

    tresult PLUGIN_API disconnect(Vst::IConnectionPoint*) override {
        return plugIn.answer("controller disconnect");
    }

    tresult PLUGIN_API notify(Vst::IMessage*) override { return kResultFalse; }

private:
    double lastValue = 0.0;
};

using ComponentBase =
    U::Implements<U::Directly<Vst::IComponent, Vst::IAudioProcessor, Vst::IConnectionPoint>>;

class FakeComponent : public ComponentBase, private Counted {
public:
    explicit FakeComponent(FakeVst3PlugIn& owner)
        : Counted(owner) {
        if (!plugIn.isSeparate)
            controller = owned(new FakeController(plugIn));
    }

    tresult PLUGIN_API queryInterface(const TUID interfaceID, void** object) override {
        if (controller != nullptr && isSame(interfaceID, Vst::IEditController::iid.toTUID()))
            return controller->queryInterface(interfaceID, object);
        if (!plugIn.hasProcessor && isSame(interfaceID, Vst::IAudioProcessor::iid.toTUID()))
            return kNoInterface;
        return ComponentBase::queryInterface(interfaceID, object);
    }

    tresult PLUGIN_API initialize(FUnknown* context) override {
        plugIn.context = context;
        return plugIn.answer("initialize");
    }

    tresult PLUGIN_API terminate() override { return plugIn.answer("terminate"); }

    tresult PLUGIN_API getControllerClassId(TUID id) override {
        std::memcpy(id, controllerID.data(), sizeof(TUID));
        return plugIn.answer("getControllerClassId");
    }

    tresult PLUGIN_API setIoMode(Vst::IoMode) override { return kNotImplemented; }

    int32 PLUGIN_API getBusCount(Vst::MediaType, Vst::BusDirection direction) override {
        return direction == Vst::kInput ? plugIn.inputBuses : 1;
    }

    tresult PLUGIN_API getBusInfo(Vst::MediaType, Vst::BusDirection, int32,
                                  Vst::BusInfo&) override {
        return kResultFalse;
    }

    tresult PLUGIN_API getRoutingInfo(Vst::RoutingInfo&, Vst::RoutingInfo&) override {
        return kNotImplemented;
    }

    tresult PLUGIN_API activateBus(Vst::MediaType, Vst::BusDirection direction, int32 index,
                                   TBool state) override {
        return plugIn.answer("activateBus", std::to_string(direction) + " " +
                                                std::to_string(index) + " " +
                                                std::to_string(state));
    }

    tresult PLUGIN_API setActive(TBool state) override {
        return plugIn.answer("setActive", std::to_string(state));
    }

    tresult PLUGIN_API setState(IBStream* stream) override {
        plugIn.state.assign(1 << 16, {});
        int32 size = 0;
        stream->read(plugIn.state.data(), static_cast<int32>(plugIn.state.size()), &size);
        plugIn.state.resize(static_cast<std::size_t>(size));
        return plugIn.answer("setState");
    }

    tresult PLUGIN_API getState(IBStream*) override { return kResultFalse; }

    tresult PLUGIN_API setBusArrangements(Vst::SpeakerArrangement* inputs, int32,
                                          Vst::SpeakerArrangement* outputs, int32) override {
        return plugIn.answer("setBusArrangements",
                             std::to_string(*inputs) + " " + std::to_string(*outputs));
    }

    tresult PLUGIN_API getBusArrangement(Vst::BusDirection, int32,
                                         Vst::SpeakerArrangement&) override {
        return kResultFalse;
    }

    tresult PLUGIN_API canProcessSampleSize(int32) override { return kResultOk; }

    uint32 PLUGIN_API getLatencySamples() override { return 0; }

    tresult PLUGIN_API setupProcessing(Vst::ProcessSetup& setup) override {
        return plugIn.answer("setupProcessing", std::to_string(setup.processMode) + " " +
                                                    std::to_string(setup.symbolicSampleSize) + " " +
                                                    std::to_string(setup.maxSamplesPerBlock) + " " +
                                                    QM::numberText(setup.sampleRate));
    }

    tresult PLUGIN_API setProcessing(TBool state) override {
        return plugIn.answer("setProcessing", std::to_string(state));
    }

    tresult PLUGIN_API process(Vst::ProcessData& data) override {
        plugIn.blocks.push_back({data.numSamples, data.processMode, data.inputs->numChannels,
                                 data.processContext->projectTimeSamples,
                                 data.processContext->tempo,
                                 changesOf(*data.inputParameterChanges)});
        for (int32 c = 0; c < data.inputs->numChannels; ++c) {
            const float* const input = data.inputs->channelBuffers32[c];
            std::transform(input, input + data.numSamples, data.outputs->channelBuffers32[c],
                           [](float sample) { return sample / 2.0F; });
        }
        return plugIn.refused == "process" ? kResultFalse : kResultOk;
    }

    uint32 PLUGIN_API getTailSamples() override { return 0; }

    tresult PLUGIN_API connect(Vst::IConnectionPoint*) override { return plugIn.answer("connect"); }

    tresult PLUGIN_API disconnect(Vst::IConnectionPoint*) override {
        return plugIn.answer("disconnect");
    }

    tresult PLUGIN_API notify(Vst::IMessage*) override { return kResultFalse; }

private:
    static std::vector<FakeChange> changesOf(Vst::IParameterChanges& changes) {
        std::vector<FakeChange> points;
        for (int32 q = 0; q < changes.getParameterCount(); ++q) {
            Vst::IParamValueQueue& queue = *changes.getParameterData(q);
            for (int32 p = 0; p < queue.getPointCount(); ++p) {
                FakeChange point{queue.getParameterId(), 0, 0.0};
                queue.getPoint(p, point.frame, point.value);
                points.push_back(point);
            }
        }
        return points;
    }

    IPtr<FakeController> controller; ///< in a plug-in of one object, which this one poses as
};

class FakeFactory : public U::Implements<U::Directly<IPluginFactory>>, private Counted {
public:
    explicit FakeFactory(FakeVst3PlugIn& owner)
        : Counted(owner) {}

    tresult PLUGIN_API getFactoryInfo(PFactoryInfo*) override { return kResultFalse; }

    int32 PLUGIN_API countClasses() override { return 0; }

    tresult PLUGIN_API getClassInfo(int32, PClassInfo*) override { return kResultFalse; }

    tresult PLUGIN_API createInstance(FIDString classID, FIDString interfaceID,
                                      void** object) override {
        if (plugIn.refused == "createInstance")
            return kNoInterface;
        IPtr<FUnknown> made;
        if (isSame(classID, componentID.data()))
            made = owned((new FakeComponent(plugIn))->unknownCast());
        else if (isSame(classID, controllerID.data()) && plugIn.isSeparate)
            made = owned((new FakeController(plugIn))->unknownCast());
        return made != nullptr ? made->queryInterface(interfaceID, object) : kNoInterface;
    }
};

} // namespace

Vst3EffectClass FakeVst3PlugIn::effectClass() {
    // The context is only handed on: the factory is as good an address as any.
    IPtr<IPluginFactory> factory = owned(static_cast<IPluginFactory*>(new FakeFactory(*this)));
    return {VST3::Hosting::PluginFactory(factory), componentID, factory};
}

tresult FakeVst3PlugIn::answer(const std::string& operation, const std::string& arguments) {
    calls.push_back(arguments.empty() ? operation : operation + " " + arguments);
    return refused == operation ? kResultFalse : kResultOk;
}
