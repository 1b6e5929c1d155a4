// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BenchLibrary.h"

#include <pluginterfaces/vst/ivsteditcontroller.h>

#include <stdexcept>
#include <string>

using namespace Steinberg;

VST3::Hosting::Module::Ptr loadLibrary() {
    std::string error;
    auto module = VST3::Hosting::Module::create(BROLT_VST3_BUNDLE, error);
    if (!module)
        throw std::runtime_error(error);
    return module;
}

LibraryPlugIn::LibraryPlugIn(const VST3::Hosting::Module::Ptr& module) {
    for (const auto& each : module->getFactory().classInfos()) {
        if (each.category() == kVstAudioEffectClass)
            component = module->getFactory().createInstance<Vst::IComponent>(each.ID());
    }
    if (!component || component->initialize(&context) != kResultOk)
        throw std::runtime_error("the library makes no plug-in");
    processor = FUnknownPtr<Vst::IAudioProcessor>(component);
}

LibraryPlugIn::~LibraryPlugIn() {
    component->terminate();
}

Vst::IAudioProcessor& LibraryPlugIn::start(double sampleRate, int32 blockFrames) {
    Vst::ProcessSetup setup{Vst::kRealtime, Vst::kSample32, blockFrames, sampleRate};
    processor->setupProcessing(setup);
    component->setActive(true);
    processor->setProcessing(true);
    return *processor;
}

IPtr<IPlugView> LibraryPlugIn::createEditor() {
    const FUnknownPtr<Vst::IEditController> controller(component);
    IPtr<IPlugView> view = owned(controller->createView(Vst::ViewType::kEditor));
    if (!view)
        throw std::runtime_error("the plug-in has no editor");
    return view;
}
