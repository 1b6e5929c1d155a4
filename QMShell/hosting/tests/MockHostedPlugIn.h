// SPDX-License-Identifier: GPL-3.0-or-later
// An instance that records what a processing host does to it. Its host stays null in its own books,
// so that a host under test may end before it. Its mocks are compiled once, in its own .cpp file.
#pragma once

#include "plugin-model/ControlMessages.h"
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gmock/gmock.h>

class MockHostedPlugIn : public NoxPlugIn {
public:
    explicit MockHostedPlugIn(TestTypeGroup& group);
    ~MockHostedPlugIn() override;

    MOCK_METHOD(void, setProcessingHost, (INoxPlugInProcessingHost*), (override));
    MOCK_METHOD(void, setSampleRate, (const double*), (override));
    MOCK_METHOD(void, setBlockSize, (std::int32_t), (override));
    MOCK_METHOD(void, handleMessage, (const Packet&), (override));
    MOCK_METHOD(const void*, processingData, (), (const, override));
    MOCK_METHOD(std::size_t, processingDataSize, (), (const, override));
    MOCK_METHOD(std::uint32_t, analysisWordCount, (), (const, override));
};

/// The one to use in tests: calls without an expectation are fine.
class NiceHostedPlugIn : public ::testing::NiceMock<MockHostedPlugIn> {
public:
    explicit NiceHostedPlugIn(TestTypeGroup& group);
    ~NiceHostedPlugIn() override;
};

/// The content of a message that carries a buffer.
NoxBufferMessage bufferMessageOf(const Packet& packet);
