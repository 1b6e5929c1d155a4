// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3Instance.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/vst3/Vst3Result.h"

#include <pluginterfaces/vst/vstspeaker.h>

using namespace Steinberg;

namespace {

template <typename Interface>
IPtr<Interface> require(IPtr<Interface> object, const char* what) {
    if (object == nullptr)
        throw HostError("the VST3 plug-in has no " + std::string(what));
    return object;
}

} // namespace

Vst3Instance::Vst3Instance(const Vst3EffectClass& effect)
    : Vst3Instance() {
    createComponent(effect);
    createController(effect);
    connectHalves();
    requireOk(controller_->setComponentHandler(&handler), "setComponentHandler");
}

Vst3Instance::~Vst3Instance() {
    if (controller_ != nullptr)
        controller_->setComponentHandler(nullptr);
    disconnectHalves();
    if (componentIsInitialised)
        component_->terminate();
    if (separateControllerIsInitialised)
        controller_->terminate();
}

void Vst3Instance::createComponent(const Vst3EffectClass& effect) {
    component_ = require(effect.factory.createInstance<Vst::IComponent>(effect.id), "component");
    requireOk(component_->initialize(effect.hostContext), "initialize");
    componentIsInitialised = true;
    processor_ = require(U::cast<Vst::IAudioProcessor>(component_), "audio processor");
}

void Vst3Instance::createController(const Vst3EffectClass& effect) {
    controller_ = U::cast<Vst::IEditController>(component_);
    if (controller_ != nullptr)
        return; // both are one object, which is initialised
    TUID id{};
    requireOk(component_->getControllerClassId(id), "getControllerClassId");
    controller_ = require(effect.factory.createInstance<Vst::IEditController>(VST3::UID(id)),
                          "edit controller");
    requireOk(controller_->initialize(effect.hostContext), "initialize of the controller");
    separateControllerIsInitialised = true;
}

void Vst3Instance::connectHalves() {
    if (!separateControllerIsInitialised)
        return;
    componentPoint = U::cast<Vst::IConnectionPoint>(component_);
    controllerPoint = U::cast<Vst::IConnectionPoint>(controller_);
    if (componentPoint == nullptr || controllerPoint == nullptr)
        return;
    componentPoint->connect(controllerPoint);
    controllerPoint->connect(componentPoint);
}

void Vst3Instance::disconnectHalves() {
    if (componentPoint == nullptr || controllerPoint == nullptr)
        return;
    componentPoint->disconnect(controllerPoint);
    controllerPoint->disconnect(componentPoint);
}

void Vst3Instance::arrangeBuses(int channels) {
    const int32 inputCount = component_->getBusCount(Vst::kAudio, Vst::kInput);
    const int32 outputCount = component_->getBusCount(Vst::kAudio, Vst::kOutput);
    if (inputCount != 1 || outputCount != 1) {
        throw HostError("the VST3 plug-in has " + std::to_string(inputCount) + " input and " +
                        std::to_string(outputCount) + " output buses; one of each is needed");
    }
    Vst::SpeakerArrangement input =
        channels == 1 ? Vst::SpeakerArr::kMono : Vst::SpeakerArr::kStereo;
    Vst::SpeakerArrangement output = input;
    requireOk(processor_->setBusArrangements(&input, 1, &output, 1), "setBusArrangements");
}
