// SPDX-License-Identifier: GPL-3.0-or-later
// A processing host that records the calls an instance makes. By itself it has a runtime
// architecture, a rate and memory to give, and answers 0 to everything else.
//
// Mocks take a compiler seconds each; those of this class are compiled once, in its own .cpp file.
#pragma once

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/tests/StubProcessingHost.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

class MockProcessingHost : public StubProcessingHost {
public:
    explicit MockProcessingHost(NoxRuntimeArchitecture architecture = NoxArchitecture::native,
                                double rate = 44100.0);
    ~MockProcessingHost() override;

    MOCK_METHOD(NoxRuntimeArchitecture, runtimeArchitecture, (), (const, override));
    MOCK_METHOD(std::uint32_t, hostWord, (), (const, override));
    MOCK_METHOD(double, sampleRate, (), (const, override));
    MOCK_METHOD(NoxResult, instantiate, (INoxPlugIn&), (override));
    MOCK_METHOD(NoxResult, removePlugIn, (INoxPlugIn*), (override));
    MOCK_METHOD(std::int32_t, defaultInputSlot, (std::int32_t), (const, override));
    MOCK_METHOD(std::int32_t, defaultOutputSlot, (std::int32_t), (const, override));
    MOCK_METHOD(void*, allocateRemoteBlock, (std::size_t, const char*), (override));
    MOCK_METHOD(void, freeRemoteBlock, (void*), (override));
    MOCK_METHOD(NoxResult, writeRemoteBlock, (void*, std::size_t, std::size_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, readRemoteBlock, (void*, std::size_t, std::size_t, void*), (override));
    MOCK_METHOD(NoxResult, readPlugInData,
                (INoxPlugIn&, std::uint64_t, std::size_t, std::size_t, void*), (override));
    MOCK_METHOD(NoxResult, sendCoefficients,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, sendMessage,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, announceTransfer,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::int32_t, const std::int32_t*),
                (override));
    MOCK_METHOD(NoxResult, fetchInputCopy,
                (INoxPlugIn&, std::uint64_t, std::uint32_t, std::uint32_t, void*), (override));

private:
    std::vector<std::unique_ptr<char>> blocks;
};

/// The one to use in tests: calls without an expectation are fine.
class NiceProcessingHost : public ::testing::NiceMock<MockProcessingHost> {
public:
    explicit NiceProcessingHost(NoxRuntimeArchitecture architecture = NoxArchitecture::native,
                                double rate = 44100.0);
    ~NiceProcessingHost() override;
};
