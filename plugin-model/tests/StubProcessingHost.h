// SPDX-License-Identifier: GPL-3.0-or-later
// A processing host that does nothing and answers 0: what tests' hosts derive from, so that each
// overrides the operations it is about and no more.
#pragma once

#include "plugin-model/INoxPlugInProcessingHost.h"

class StubProcessingHost : public INoxPlugInProcessingHost {
public:
    [[nodiscard]] const char* className() const override { return "StubProcessingHost"; }

    [[nodiscard]] const char* hostLabel() const override { return ""; }

    void setEnvironment(INoxPlugInEnvironment*) override {}

    [[nodiscard]] INoxPlugInEnvironment* environment() const override { return nullptr; }

    [[nodiscard]] NoxRuntimeArchitecture runtimeArchitecture() const override {
        return NoxArchitecture::native;
    }

    [[nodiscard]] std::uint32_t hostWord() const override { return 0; }

    void setHostFlag() override {}

    void clearHostFlag() override {}

    [[nodiscard]] bool hostFlag() const override { return false; }

    void beginNotifications() override {}

    void endNotifications() override {}

    void postNotification(INoxPlugInNotificationTarget&, std::uint64_t) override {}

    void setSampleRate(const double*) override {}

    [[nodiscard]] double sampleRate() const override { return 44100.0; }

    void setBlockSize(std::int32_t) override {}

    [[nodiscard]] std::int32_t blockSize() const override { return 0; }

    float* scratchBufferA() override { return nullptr; }

    float* scratchBufferB() override { return nullptr; }

    NoxResult instantiate(INoxPlugIn&) override { return 0; }

    NoxResult testInstantiatePlugIn(INoxPlugIn&) override { return 0; }

    NoxResult removePlugIn(INoxPlugIn*) override { return 0; }

    [[nodiscard]] std::int32_t slotCount() const override { return 0; }

    [[nodiscard]] const NoxSlotRecord* slotInfo(std::int32_t) const override { return nullptr; }

    [[nodiscard]] INoxPlugIn* plugInAt(std::int32_t) const override { return nullptr; }

    [[nodiscard]] std::int32_t defaultInputSlot(std::int32_t) const override { return -1; }

    [[nodiscard]] std::int32_t defaultOutputSlot(std::int32_t) const override { return -1; }

    void* allocateRemoteBlock(std::size_t, const char*) override { return nullptr; }

    void freeRemoteBlock(void*) override {}

    NoxResult writeRemoteBlock(void*, std::size_t, std::size_t, const void*) override { return 0; }

    NoxResult readRemoteBlock(void*, std::size_t, std::size_t, void*) override { return 0; }

    NoxResult readPlugInData(INoxPlugIn&, std::uint64_t, std::size_t, std::size_t, void*) override {
        return 0;
    }

    NoxResult sendCoefficients(std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t,
                               const void*) override {
        return 0;
    }

    NoxResult sendMessage(std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t,
                          const void*) override {
        return 0;
    }

    NoxResult announceTransfer(std::uint32_t, INoxPlugIn&, std::uint64_t, std::int32_t,
                               const std::int32_t*) override {
        return 0;
    }

    NoxResult fetchInputCopy(INoxPlugIn&, std::uint64_t, std::uint32_t, std::uint32_t,
                             void*) override {
        return 0;
    }

    NoxResult fetchAnalysisData(INoxPlugIn&, std::uint64_t, void*) override { return 0; }
};
