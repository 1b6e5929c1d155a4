// SPDX-License-Identifier: GPL-3.0-or-later
// Buses, arrangements and setting up of the VST3 plug-in.

#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "plugin-model/INoxPlugIn.h"

#include <cmath>

using namespace Steinberg;
using namespace Steinberg::Vst;

namespace {

constexpr int32 mono = 1;
constexpr int32 stereo = 2;
/// Speakers of the widest sidechain.
constexpr int32 widestSidechain = 3;

void arrange(AudioBus& bus, SpeakerArrangement arrangement, const TChar* name) {
    if (bus.getArrangement() == arrangement)
        return;
    bus.setArrangement(arrangement);
    bus.setName(name);
}

bool isDirection(BusDirection direction) {
    return direction == kInput || direction == kOutput;
}

} // namespace

tresult PLUGIN_API QMShellVST3::getBusInfo(MediaType type, BusDirection direction, int32 index,
                                           BusInfo& info) {
    if (!isDirection(direction) || index < 0)
        return kInvalidArgument;
    return guarded("QMShellVST3::getBusInfo", failed,
                   [&] { return SingleComponentEffect::getBusInfo(type, direction, index, info); });
}

tresult PLUGIN_API QMShellVST3::activateBus(MediaType type, BusDirection direction, int32 index,
                                            TBool state) {
    if (!isDirection(direction) || index < 0)
        return kInvalidArgument;
    return guarded("QMShellVST3::activateBus", failed, [&] {
        return SingleComponentEffect::activateBus(type, direction, index, state);
    });
}

AudioBus* QMShellVST3::audioBus(BusDirection direction, int32 index) {
    const BusList& buses = *getBusList(kAudio, direction);
    if (index < 0 || index >= static_cast<int32>(buses.size()))
        return nullptr;
    return FCast<AudioBus>(buses[static_cast<std::size_t>(index)].get());
}

tresult PLUGIN_API QMShellVST3::getBusArrangement(BusDirection direction, int32 index,
                                                  SpeakerArrangement& arrangement) {
    if (!isDirection(direction))
        return kInvalidArgument;
    return guarded("QMShellVST3::getBusArrangement", failed, [&] {
        const AudioBus* const bus = audioBus(direction, index);
        if (bus == nullptr)
            return kResultFalse;
        arrangement = bus->getArrangement();
        return kResultTrue;
    });
}

tresult PLUGIN_API QMShellVST3::setBusArrangements(SpeakerArrangement* inputs, int32 numIns,
                                                   SpeakerArrangement* outputs, int32 numOuts) {
    if (numIns < 0 || numOuts < 0 || (numIns > 0 && inputs == nullptr) ||
        (numOuts > 0 && outputs == nullptr))
        return kInvalidArgument;
    return guarded("QMShellVST3::setBusArrangements", failed, [&] {
        if (!isInitialised)
            return kResultFalse;
        const bool applied = applyArrangements(inputs, numIns, outputs, numOuts);
        // Offline, a host starts to render without further notice: the second time leaves nothing
        // of what the change of layout set off.
        if (processMode == kOffline)
            startOver();
        startOver();
        return applied ? kResultTrue : kResultFalse;
    });
}

bool QMShellVST3::applyArrangements(const SpeakerArrangement* inputs, int32 numIns,
                                    const SpeakerArrangement* outputs, int32 numOuts) {
    constexpr int32 withSidechain = 2;
    if (numOuts != 1 || (numIns != 1 && numIns != withSidechain))
        return false;
    if (!applyMainArrangements(inputs[0], outputs[0]))
        return false;
    if (numIns == 1)
        return true;
    if (SpeakerArr::getChannelCount(inputs[1]) > widestSidechain)
        return false;
    if (AudioBus* const sidechain = audioBus(kInput, 1))
        sidechain->setArrangement(inputs[1]);
    return true;
}

bool QMShellVST3::applyMainArrangements(SpeakerArrangement input, SpeakerArrangement output) {
    AudioBus* const in = audioBus(kInput, 0);
    AudioBus* const out = audioBus(kOutput, 0);
    if (in == nullptr || out == nullptr)
        return false;
    const int32 inChannels = SpeakerArr::getChannelCount(input);
    const int32 outChannels = SpeakerArr::getChannelCount(output);
    if (inChannels == mono && outChannels == mono) {
        arrange(*in, input, STR16("Mono In"));
        arrange(*out, input, STR16("Mono Out"));
        return true;
    }
    const bool isStereo = inChannels == stereo && outChannels == stereo;
    arrange(*in, isStereo ? input : SpeakerArr::kStereo, STR16("Stereo In"));
    arrange(*out, isStereo ? output : SpeakerArr::kStereo, STR16("Stereo Out"));
    return isStereo;
}

void QMShellVST3::matchInstanceToBuses() {
    const AudioBus* const in = audioBus(kInput, 0);
    if (in == nullptr || !hosted.matchChannels(SpeakerArr::getChannelCount(in->getArrangement())))
        return;
    publishParameters();
    hosted.reset(processSetup.sampleRate);
}

void QMShellVST3::startOver() {
    matchInstanceToBuses();
    const double sampleRate = processSetup.sampleRate;
    hosted.activate(sampleRate);
    processingHost.setSampleRate(&sampleRate);
    hosted.reset(sampleRate);
}

tresult PLUGIN_API QMShellVST3::setActive(TBool) {
    return guarded("QMShellVST3::setActive", failed, [&] {
        if (!isInitialised)
            return kResultFalse;
        startOver();
        return kResultOk;
    });
}

tresult PLUGIN_API QMShellVST3::setProcessing(TBool state) {
    if (state != 0)
        return kResultOk;
    return guarded("QMShellVST3::setProcessing", failed, [&] {
        const double sampleRate = processSetup.sampleRate;
        processingHost.setSampleRate(&sampleRate);
        hosted.reset(sampleRate);
        return kResultOk;
    });
}

tresult PLUGIN_API QMShellVST3::setupProcessing(ProcessSetup& setup) {
    return guarded("QMShellVST3::setupProcessing", failed, [&] {
        processMode = setup.processMode;
        const bool isUsable = std::isfinite(setup.sampleRate) && setup.sampleRate > 0.0 &&
                              setup.maxSamplesPerBlock >= 0;
        if (canProcessSampleSize(setup.symbolicSampleSize) != kResultTrue || !isUsable)
            return kResultFalse;
        processSetup = setup;
        return kResultOk;
    });
}

uint32 PLUGIN_API QMShellVST3::getLatencySamples() {
    return guarded("QMShellVST3::getLatencySamples", uint32{0}, [&] {
        return hosted.get() == nullptr ? 0U : static_cast<uint32>(hosted.get()->latency());
    });
}

uint32 PLUGIN_API QMShellVST3::getTailSamples() {
    return guarded("QMShellVST3::getTailSamples", uint32{kNoTail}, [&]() -> uint32 {
        if (hosted.get() == nullptr)
            return kNoTail;
        const int32 seconds = hosted.get()->tailSeconds();
        return seconds < 0 ? kInfiniteTail : static_cast<uint32>(processSetup.sampleRate * seconds);
    });
}
