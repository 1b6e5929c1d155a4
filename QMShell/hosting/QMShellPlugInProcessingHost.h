// SPDX-License-Identifier: GPL-3.0-or-later
// The processing host that every host adapter embeds: runs instances natively, in process. What
// only makes sense with attached hardware answers fixed values.
#pragma once

#include "plugin-model/INoxPlugInProcessingHost.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QMShellPlugInProcessingHost : public INoxPlugInProcessingHost {
public:
    /// The environment may be null and given later.
    explicit QMShellPlugInProcessingHost(INoxPlugInEnvironment* environment = nullptr);
    /// Slotted instances are told that they have no host any more.
    ~QMShellPlugInProcessingHost() override;
    QMShellPlugInProcessingHost(const QMShellPlugInProcessingHost&) = delete;
    QMShellPlugInProcessingHost& operator=(const QMShellPlugInProcessingHost&) = delete;

    [[nodiscard]] const char* className() const override;

    [[nodiscard]] const char* hostLabel() const override { return "n/a"; }

    void setEnvironment(INoxPlugInEnvironment* environment) override { environment_ = environment; }

    [[nodiscard]] INoxPlugInEnvironment* environment() const override { return environment_; }

    [[nodiscard]] NoxRuntimeArchitecture runtimeArchitecture() const override;

    [[nodiscard]] std::uint32_t hostWord() const override { return 0; }

    void setHostFlag() override { hostFlag_ = true; }

    void clearHostFlag() override { hostFlag_ = false; }

    [[nodiscard]] bool hostFlag() const override { return hostFlag_; }

    void beginNotifications() override { ++notificationNesting; }

    void endNotifications() override;
    void postNotification(INoxPlugInNotificationTarget& target, std::uint64_t argument) override;

    void setSampleRate(const double* rate) override;

    [[nodiscard]] double sampleRate() const override { return sampleRate_; }

    void setBlockSize(std::int32_t frames) override;

    [[nodiscard]] std::int32_t blockSize() const override { return blockSize_; }

    float* scratchBufferA() override;
    float* scratchBufferB() override;

    /// Most slots that may be occupied; negative for no limit. Starts at 0: adapters attach their
    /// instance with setProcessingHost and need no slot.
    void setSlotLimit(std::int32_t limit) { slotLimit = limit; }

    NoxResult instantiate(INoxPlugIn& plugIn) override;
    NoxResult testInstantiatePlugIn(INoxPlugIn& plugIn) override;
    NoxResult removePlugIn(INoxPlugIn* plugIn) override;

    [[nodiscard]] std::int32_t slotCount() const override { return slotCount_; }

    [[nodiscard]] const NoxSlotRecord* slotInfo(std::int32_t index) const override;
    [[nodiscard]] INoxPlugIn* plugInAt(std::int32_t index) const override;

    [[nodiscard]] std::int32_t defaultInputSlot(std::int32_t) const override { return -1; }

    [[nodiscard]] std::int32_t defaultOutputSlot(std::int32_t) const override { return -1; }

    void* allocateRemoteBlock(std::size_t size, const char* name) override;
    void freeRemoteBlock(void* address) override;
    NoxResult writeRemoteBlock(void* address, std::size_t offset, std::size_t length,
                               const void* source) override;
    NoxResult readRemoteBlock(void* address, std::size_t offset, std::size_t length,
                              void* destination) override;
    NoxResult readPlugInData(INoxPlugIn& plugIn, std::uint64_t remoteID, std::size_t offset,
                             std::size_t length, void* destination) override;

    /// Nothing is attached to send to: noHostAvailable, as the next.
    NoxResult sendCoefficients(std::uint32_t word, INoxPlugIn& plugIn, std::uint64_t remoteID,
                               std::uint32_t wordCount, const void* words) override;
    NoxResult sendMessage(std::uint32_t word, INoxPlugIn& plugIn, std::uint64_t remoteID,
                          std::uint32_t wordCount, const void* words) override;
    /// Needs no announcing in process; noError.
    NoxResult announceTransfer(std::uint32_t word, INoxPlugIn& plugIn, std::uint64_t remoteID,
                               std::int32_t codeCount, const std::int32_t* codes) override;
    /// Has the instance copy its snapshot through its message entry, on this thread. Always
    /// answers noHostAvailable: callers look at the words, not at the answer.
    NoxResult fetchInputCopy(INoxPlugIn& plugIn, std::uint64_t remoteID, std::uint32_t wordOffset,
                             std::uint32_t wordCount, void* destination) override;
    NoxResult fetchAnalysisData(INoxPlugIn& plugIn, std::uint64_t remoteID, void* request) override;

protected:
    // Hooks for hosts that do something when an instance comes or goes.

    /// Before an instance gets a slot; 4 lets it in and becomes the result.
    virtual NoxResult testHook(INoxPlugIn&) { return NoxResultCode::noError; }

    virtual NoxResult attachHook(std::int32_t /*slot*/, INoxPlugIn&) {
        return NoxResultCode::noError;
    }

    virtual NoxResult detachHook(std::int32_t /*slot*/, INoxPlugIn&) {
        return NoxResultCode::noError;
    }

private:
    struct RemoteBlock {
        std::unique_ptr<std::byte[]> memory;
        std::size_t size;
        std::string name;
    };

    using Scratch = std::unique_ptr<float[]>;

    float* scratch(Scratch& buffer) const;
    void freeSlot(std::size_t slot);

    INoxPlugInEnvironment* environment_;
    std::int32_t slotLimit = 0;
    std::int32_t slotCount_ = 0;
    std::vector<INoxPlugIn*> slots;
    double sampleRate_ = 44100.0;
    std::int32_t blockSize_ = 0;
    std::uint32_t notificationNesting = 0;
    std::vector<std::pair<INoxPlugInNotificationTarget*, std::uint64_t>> pendingNotifications;
    Scratch scratchA;
    Scratch scratchB;
    bool hostFlag_ = false;
    std::vector<std::byte> analysisTransfer;
    std::map<void*, RemoteBlock> remoteBlocks;
};
