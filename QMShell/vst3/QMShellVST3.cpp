// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/QMShellVST3.h"

#include "QMShell/gui/GenericEditor.h"
#include "QMShell/toolkit/RepeatingCheck.h"
#include "QMShell/toolkit/ToolkitUse.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "QMShell/vst3/QMVstParameter.h"
#include "QMShell/vst3/Vst3RunLoop.h"
#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"

using namespace Steinberg;
using namespace Steinberg::Vst;

namespace {

constexpr int checkPeriodMs = 100;

} // namespace

QMShellVST3::QMShellVST3(const Vst3Product& adaptedProduct, FUnknown* hostOfLibrary)
    : product(adaptedProduct)
    , libraryContext(hostOfLibrary)
    , processingHost(nullptr)
    , typeGroup(product.createTypeGroup(&environment))
    , hosted(processingHost, *typeGroup) {
    environment.registerTypeGroup(*typeGroup);
    NoxHostDescription& description = environment.hostDescription();
    description.enabled = true;
    description.tempo = [this] { return tempo.load(std::memory_order_relaxed); };
    environment.setGenericEditorFactory(genericEditorsOf(product.createEditorUI));
}

QMShellVST3::~QMShellVST3() {
    end();
}

tresult PLUGIN_API QMShellVST3::initialize(FUnknown* context) {
    const tresult result =
        guarded("QMShellVST3::initialize", failed, [&] { return begin(context); });
    if (result != kResultOk)
        return result;
    // Without the lock: the message thread is waited for, and the check wants the lock.
    const tresult watched = contained("QMShellVST3::initialize", failed, [&] {
        toolkit = std::make_unique<ToolkitUse>(runLoopOf(context));
        check = std::make_unique<RepeatingCheck>(checkPeriodMs,
                                                 [this] { checkWhetherProcessingStopped(); });
        return kResultOk;
    });
    if (watched != kResultOk)
        terminate();
    return watched;
}

/// The one of the context given here; else the one that the host gave the library as a whole.
std::shared_ptr<IHostRunLoop> QMShellVST3::runLoopOf(FUnknown* context) const {
    auto runLoop = runLoopOfHost(context);
    return runLoop ? runLoop : runLoopOfHost(libraryContext);
}

tresult QMShellVST3::begin(FUnknown* context) {
    if (isInitialised)
        return kResultFalse;
    const tresult result = SingleComponentEffect::initialize(context);
    if (result != kResultOk)
        return result;
    try {
        addBuses();
        isInitialised = true;
    } catch (...) {
        SingleComponentEffect::terminate();
        throw;
    }
    return kResultOk;
}

void QMShellVST3::addBuses() {
    addAudioInput(STR16("Stereo In"), SpeakerArr::kStereo);
    addAudioOutput(STR16("Stereo Out"), SpeakerArr::kStereo);
    matchInstanceToBuses();
    if (hosted.get()->type()->hasSidechain())
        addAudioInput(STR16("Sidechain In"), SpeakerArr::kMono, kAux, 0);
}

tresult PLUGIN_API QMShellVST3::terminate() {
    end();
    return guarded("QMShellVST3::terminate", failed, [&] {
        isInitialised = false;
        hosted.drop();
        return SingleComponentEffect::terminate();
    });
}

void QMShellVST3::end() noexcept {
    // The check first; it runs on the message thread and knows this object.
    check.reset();
    toolkit.reset();
}

void QMShellVST3::checkWhetherProcessingStopped() noexcept {
    guarded("QMShellVST3::check", false, [&] {
        return hosted.resetIfStopped(processSetup.sampleRate, processSetup.maxSamplesPerBlock);
    });
}
