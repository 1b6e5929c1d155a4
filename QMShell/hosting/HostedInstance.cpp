// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/hosting/HostedInstance.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"
#include "presets/record/QMGenericPreset.h"

#include <utility>

namespace {

void carryAcross(const INoxPlugIn& from, INoxPlugIn& to) {
    to.applyStateRecord(from.getStateRecord(StateExtent::complete));
    const std::int32_t bypass = to.type()->bypassParameterIndex();
    if (bypass >= 0)
        to.setParameterValue(bypass, from.parameterValue(bypass));
    // Nobody did anything that could be undone.
    to.clearUndoAndRedo();
}

} // namespace

HostedInstance::HostedInstance(INoxPlugInProcessingHost& processingHost,
                               INoxPlugInTypeGroup& typeGroup)
    : host(processingHost)
    , group(typeGroup) {}

HostedInstance::~HostedInstance() {
    drop();
}

void HostedInstance::drop() {
    std::unique_ptr<INoxPlugIn> last;
    {
        const ProcessingPause pause(gate);
        std::swap(instance, last);
        channelCount = 0;
        activity.noteReset();
    }
    if (last)
        last->setProcessingHost(nullptr);
}

bool HostedInstance::matchChannels(std::int32_t channels) {
    INoxPlugInType* const type = group.typeOfIndex(channels - 1);
    if (type == nullptr || (instance && channels == channelCount))
        return false;
    std::unique_ptr<INoxPlugIn> next = type->createAndRecordInstance();
    next->createProcessingState();
    next->setProcessingHost(&host);
    if (instance)
        carryAcross(*instance, *next);
    {
        const ProcessingPause pause(gate);
        std::swap(instance, next);
        channelCount = channels;
    }
    if (next)
        next->setProcessingHost(nullptr);
    return true;
}

void HostedInstance::activate(double sampleRate) {
    if (!instance)
        return;
    const ProcessingPause pause(gate);
    instance->createProcessingState();
    bringToRest(sampleRate);
}

void HostedInstance::reset(double sampleRate) {
    if (!instance)
        return;
    const ProcessingPause pause(gate);
    bringToRest(sampleRate);
}

bool HostedInstance::resetIfStopped(double sampleRate, std::int32_t blockSize) {
    const auto threshold = ProcessingActivity::threshold(blockSize, sampleRate);
    if (!instance || !activity.hasStopped(ProcessingActivity::Clock::now(), threshold))
        return false;
    if (!gate.tryClose())
        return false;
    // A block may have come and gone meanwhile; with the gate closed none can.
    const bool stopped = activity.hasStopped(ProcessingActivity::Clock::now(), threshold);
    if (stopped)
        bringToRest(sampleRate);
    gate.reopen();
    return stopped;
}

void HostedInstance::bringToRest(double sampleRate) {
    activity.noteReset();
    instance->setSampleRate(&sampleRate);
    instance->refresh(&host);
    instance->discardPendingCoefficients();
    instance->resetProcessingState();
}

std::int32_t HostedInstance::process(const NoxProcessBlock& input,
                                     const NoxProcessBlock& output) noexcept {
    if (!gate.enter())
        return 0;
    const bool canRun = instance != nullptr && input.channelCount >= channelCount &&
                        output.channelCount >= channelCount;
    if (canRun) {
        activity.noteBlock(ProcessingActivity::Clock::now());
        instance->process(input, output);
    }
    const std::int32_t written = canRun ? channelCount : 0;
    gate.leave();
    return written;
}
