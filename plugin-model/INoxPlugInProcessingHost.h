// SPDX-License-Identifier: GPL-3.0-or-later
// What runs plug-in instances: numbered slots, sample rate and block size, memory blocks near the
// processor, and the road for coefficient records and messages where the processor is not in this
// process. A host adapter owns one. Results are NoxResult codes. Control threads only, unless an
// operation says otherwise.
#pragma once

#include "plugin-model/NoxRuntimeArchitecture.h"
#include "plugin-model/NoxSlotRecord.h"
#include "plugin-model/ResultCodes.h"

#include <cstddef>
#include <cstdint>

class INoxPlugIn;
class INoxPlugInEnvironment;

/// Who takes a notification that was put off until the host's outermost bracket ended.
class INoxPlugInNotificationTarget {
public:
    virtual ~INoxPlugInNotificationTarget() = default;
    virtual void deliverNotification(std::uint64_t argument) = 0;
};

class INoxPlugInProcessingHost {
public:
    virtual ~INoxPlugInProcessingHost() = default;

    [[nodiscard]] virtual const char* className() const = 0;
    [[nodiscard]] virtual const char* hostLabel() const = 0;
    virtual void setEnvironment(INoxPlugInEnvironment* environment) = 0;
    [[nodiscard]] virtual INoxPlugInEnvironment* environment() const = 0;
    [[nodiscard]] virtual NoxRuntimeArchitecture runtimeArchitecture() const = 0;
    /// The host's 32-bit status word.
    [[nodiscard]] virtual std::uint32_t hostWord() const = 0;
    virtual void setHostFlag() = 0;
    virtual void clearHostFlag() = 0;
    [[nodiscard]] virtual bool hostFlag() const = 0;

    // Brackets around bursts of notifications: what is posted is delivered, in order, when the
    // outermost bracket ends, and at once outside of brackets.

    virtual void beginNotifications() = 0;
    virtual void endNotifications() = 0;
    virtual void postNotification(INoxPlugInNotificationTarget& target, std::uint64_t argument) = 0;

    // Rate and block size. New values are pushed into every slotted instance in slot order.

    /// Hz; an equal rate does nothing.
    virtual void setSampleRate(const double* rate) = 0;
    [[nodiscard]] virtual double sampleRate() const = 0;
    /// Frames.
    virtual void setBlockSize(std::int32_t frames) = 0;
    [[nodiscard]] virtual std::int32_t blockSize() const = 0;
    /// Block-size floats, zeroed when first asked for and kept at that size.
    virtual float* scratchBufferA() = 0;
    virtual float* scratchBufferB() = 0;

    // Slots.

    /// Puts the instance into a slot and becomes its processing host.
    virtual NoxResult instantiate(INoxPlugIn& plugIn) = 0;
    /// notEnoughSlots when the slot limit is reached, else noError.
    virtual NoxResult testInstantiatePlugIn(INoxPlugIn& plugIn) = 0;
    /// noSuchPlugIn when the instance is null, or does not know its slot.
    virtual NoxResult removePlugIn(INoxPlugIn* plugIn) = 0;
    [[nodiscard]] virtual std::int32_t slotCount() const = 0;
    /// The slotted instance's slot record; null out of range or for a free slot.
    [[nodiscard]] virtual const NoxSlotRecord* slotInfo(std::int32_t index) const = 0;
    /// Null for an index that is not below the number of occupied slots.
    [[nodiscard]] virtual INoxPlugIn* plugInAt(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::int32_t defaultInputSlot(std::int32_t input) const = 0;
    [[nodiscard]] virtual std::int32_t defaultOutputSlot(std::int32_t output) const = 0;

    // Remote blocks: memory near the processor. Offsets and lengths in bytes.

    /// Null when the memory cannot be had. A null name counts as empty.
    virtual void* allocateRemoteBlock(std::size_t size, const char* name) = 0;
    virtual void freeRemoteBlock(void* address) = 0;
    /// notEnoughRemoteMemory when the range passes the block's end; nothing is written then.
    virtual NoxResult writeRemoteBlock(void* address, std::size_t offset, std::size_t length,
                                       const void* source) = 0;
    /// A range past the block's end is cut, and that is logged.
    virtual NoxResult readRemoteBlock(void* address, std::size_t offset, std::size_t length,
                                      void* destination) = 0;
    /// Copies from the instance's processing state; instanceNotFound without one.
    virtual NoxResult readPlugInData(INoxPlugIn& plugIn, std::uint64_t remoteID, std::size_t offset,
                                     std::size_t length, void* destination) = 0;

    // Traffic to and from a processor elsewhere. Counts in 32-bit words.

    virtual NoxResult sendCoefficients(std::uint32_t word, INoxPlugIn& plugIn,
                                       std::uint64_t remoteID, std::uint32_t wordCount,
                                       const void* words) = 0;
    virtual NoxResult sendMessage(std::uint32_t word, INoxPlugIn& plugIn, std::uint64_t remoteID,
                                  std::uint32_t wordCount, const void* words) = 0;
    /// Announces a transfer of analysis words, with the codes the remote side needs.
    virtual NoxResult announceTransfer(std::uint32_t word, INoxPlugIn& plugIn,
                                       std::uint64_t remoteID, std::int32_t codeCount,
                                       const std::int32_t* codes) = 0;
    /// Copies wordCount analysis words, from a word offset, to the destination.
    virtual NoxResult fetchInputCopy(INoxPlugIn& plugIn, std::uint64_t remoteID,
                                     std::uint32_t wordOffset, std::uint32_t wordCount,
                                     void* destination) = 0;
    /// Starts an analysis transfer; the request begins with a channel count and a frame count
    /// (int32 each), samples follow channel after channel.
    virtual NoxResult fetchAnalysisData(INoxPlugIn& plugIn, std::uint64_t remoteID,
                                        void* request) = 0;
};
