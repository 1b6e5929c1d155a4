// SPDX-License-Identifier: GPL-3.0-or-later
// Rate, block size, slots and notifications. Remote memory and analysis traffic are in
// ProcessingHostMemory.cpp beside this one.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInEnvironment.h"
#include "services/Log.h"

#include <algorithm>

QMShellPlugInProcessingHost::QMShellPlugInProcessingHost(INoxPlugInEnvironment* environment)
    : environment_(environment) {}

QMShellPlugInProcessingHost::~QMShellPlugInProcessingHost() {
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        if (slots[slot] != nullptr)
            freeSlot(slot);
    }
}

const char* QMShellPlugInProcessingHost::className() const {
    return "QMShellPlugInProcessingHost";
}

NoxRuntimeArchitecture QMShellPlugInProcessingHost::runtimeArchitecture() const {
    return NoxArchitecture::native;
}

void QMShellPlugInProcessingHost::endNotifications() {
    if (notificationNesting == 0 || --notificationNesting > 0)
        return;
    // What a delivery posts is outside the bracket again and delivered by itself.
    const auto delivered = std::exchange(pendingNotifications, {});
    for (const auto& [target, argument] : delivered)
        target->deliverNotification(argument);
}

void QMShellPlugInProcessingHost::postNotification(INoxPlugInNotificationTarget& target,
                                                   std::uint64_t argument) {
    if (notificationNesting > 0)
        pendingNotifications.emplace_back(&target, argument);
    else
        target.deliverNotification(argument);
}

void QMShellPlugInProcessingHost::setSampleRate(const double* rate) {
    if (*rate == sampleRate_)
        return;
    sampleRate_ = *rate;
    // An instance tells the environment of its new rate itself, before this host does: listeners
    // hear it twice and see the same rate both times.
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        INoxPlugIn* plugIn = slots[slot];
        if (plugIn == nullptr)
            continue;
        plugIn->setSampleRate(&sampleRate_);
        if (environment_ != nullptr)
            environment_->sampleRateSet(*plugIn, &sampleRate_);
    }
}

void QMShellPlugInProcessingHost::setBlockSize(std::int32_t frames) {
    blockSize_ = frames;
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
        INoxPlugIn* plugIn = slots[slot];
        if (plugIn == nullptr)
            continue;
        plugIn->setBlockSize(frames);
        if (environment_ != nullptr)
            environment_->blockSizeSet(*plugIn, frames);
    }
}

float* QMShellPlugInProcessingHost::scratch(Scratch& buffer) const {
    if (buffer == nullptr)
        buffer = std::make_unique<float[]>(static_cast<std::size_t>(std::max(0, blockSize_)));
    return buffer.get();
}

float* QMShellPlugInProcessingHost::scratchBufferA() {
    return scratch(scratchA);
}

float* QMShellPlugInProcessingHost::scratchBufferB() {
    return scratch(scratchB);
}

NoxResult QMShellPlugInProcessingHost::testInstantiatePlugIn(INoxPlugIn& plugIn) {
    if (slotLimit >= 0 && slotCount_ >= slotLimit)
        return NoxResultCode::notEnoughSlots;
    return testHook(plugIn);
}

NoxResult QMShellPlugInProcessingHost::instantiate(INoxPlugIn& plugIn) {
    const std::string name = plugIn.displayName();
    NoxResult result = testInstantiatePlugIn(plugIn);
    if (result != NoxResultCode::noError && result != NoxResultCode::notEnoughRemoteMemory) {
        QM::log(QM::LogLevel::error,
                "Error: Instantiate Plugin: TestInstantiatePlugIn returned %d for %s[%p]\n", result,
                name.c_str(), static_cast<void*>(&plugIn));
        return result;
    }
    const auto slot = std::find(slots.begin(), slots.end(), nullptr);
    const auto index = static_cast<std::int32_t>(slot - slots.begin());
    QM::log(QM::LogLevel::trace, "PH[%p]: Found Slot %d for PlugIn %p\n", static_cast<void*>(this),
            index, static_cast<void*>(&plugIn));
    if (slot != slots.end()) {
        *slot = &plugIn;
    } else {
        QM::log(QM::LogLevel::trace, "PH[%p]: Added Slot %d during instantiation\n",
                static_cast<void*>(this), index);
        slots.push_back(&plugIn);
    }
    ++slotCount_;
    if (result == NoxResultCode::noError)
        result = attachHook(index, plugIn);
    plugIn.setProcessingHost(this);
    return result;
}

void QMShellPlugInProcessingHost::freeSlot(std::size_t slot) {
    INoxPlugIn* plugIn = slots[slot];
    plugIn->setProcessingHost(nullptr);
    slots[slot] = nullptr;
    --slotCount_;
}

NoxResult QMShellPlugInProcessingHost::removePlugIn(INoxPlugIn* plugIn) {
    if (plugIn == nullptr)
        return NoxResultCode::noSuchPlugIn;
    if (const NoxSlotRecord* record = plugIn->slotRecord()) {
        const auto slot = static_cast<std::size_t>(record->index);
        if (record->index < 0 || slot >= slots.size() || slots[slot] != plugIn)
            return NoxResultCode::noSuchPlugIn;
        QM::log(QM::LogLevel::trace, "PH[%p]: Removing PlugIn %p from Slot %d\n",
                static_cast<void*>(this), static_cast<void*>(plugIn), record->index);
        const NoxResult result = detachHook(record->index, *plugIn);
        freeSlot(slot);
        return result;
    }
    // An instance that does not know its slot is removed all the same, but never with success:
    // callers tell the two cases apart by the answer.
    const auto found = std::find(slots.begin(), slots.end(), plugIn);
    if (found != slots.end())
        freeSlot(static_cast<std::size_t>(found - slots.begin()));
    return NoxResultCode::noSuchPlugIn;
}

const NoxSlotRecord* QMShellPlugInProcessingHost::slotInfo(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= slots.size())
        return nullptr;
    const INoxPlugIn* plugIn = slots[static_cast<std::size_t>(index)];
    return plugIn != nullptr ? plugIn->slotRecord() : nullptr;
}

INoxPlugIn* QMShellPlugInProcessingHost::plugInAt(std::int32_t index) const {
    if (index < 0 || index >= slotCount_)
        return nullptr;
    return slots[static_cast<std::size_t>(index)];
}
