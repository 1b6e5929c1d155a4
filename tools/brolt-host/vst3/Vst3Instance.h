// SPDX-License-Identifier: GPL-3.0-or-later
//
// One instance of a VST3 effect between initialize and terminate: its component, processor and edit
// controller, be they one object or two.

#pragma once

#include "tools/brolt-host/vst3/Vst3ComponentHandler.h"
#include "tools/brolt-host/vst3/Vst3EffectClass.h"

#include <pluginterfaces/vst/ivstaudioprocessor.h>
#include <pluginterfaces/vst/ivstcomponent.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>
#include <pluginterfaces/vst/ivstmessage.h>

#include <utility>

class Vst3Instance {
public:
    /// Creates and initialises both halves, connects them where they are two, and hands the
    /// controller its handler. Throws HostError when the plug-in refuses or lacks an interface.
    /// [message thread]
    explicit Vst3Instance(const Vst3EffectClass& effect);

    /// The same backwards. [message thread]
    ~Vst3Instance();

    Vst3Instance(const Vst3Instance&) = delete;
    Vst3Instance& operator=(const Vst3Instance&) = delete;

    [[nodiscard]] Steinberg::Vst::IComponent& component() const { return *component_; }

    [[nodiscard]] Steinberg::Vst::IAudioProcessor& processor() const { return *processor_; }

    [[nodiscard]] Steinberg::Vst::IEditController& controller() const { return *controller_; }

    /// Makes the main input and output mono or stereo. Throws HostError when the plug-in refuses or
    /// has other buses than one input and one output. [message thread]
    void arrangeBuses(int channels);

    /// Who is told of the controller's edits; the empty function for nobody. [message thread]
    void observeEdits(Vst3ComponentHandler::Observer observer) {
        handler.setObserver(std::move(observer));
    }

private:
    /// With it a constructor that throws on its way still has its destructor run.
    Vst3Instance() = default;

    void createComponent(const Vst3EffectClass& effect);
    void createController(const Vst3EffectClass& effect);
    void connectHalves();
    void disconnectHalves();

    Vst3ComponentHandler handler; ///< outlives the controller
    Steinberg::IPtr<Steinberg::Vst::IComponent> component_;
    Steinberg::IPtr<Steinberg::Vst::IAudioProcessor> processor_;
    Steinberg::IPtr<Steinberg::Vst::IEditController> controller_;
    Steinberg::IPtr<Steinberg::Vst::IConnectionPoint> componentPoint;
    Steinberg::IPtr<Steinberg::Vst::IConnectionPoint> controllerPoint;
    bool componentIsInitialised = false;
    bool separateControllerIsInitialised = false;
};
