// SPDX-License-Identifier: GPL-3.0-or-later
// An environment that records what instances tell it. Its mocks are compiled once, in its own .cpp
// file.
#pragma once

#include "plugin-model/tests/StubEnvironment.h"

#include <gmock/gmock.h>

class MockEnvironment : public StubEnvironment {
public:
    MockEnvironment();
    ~MockEnvironment() override;

    MOCK_METHOD(void, plugInGoingAway, (INoxPlugIn&), (override));
    MOCK_METHOD(void, sampleRateSet, (INoxPlugIn&, const double*), (override));
    MOCK_METHOD(void, blockSizeSet, (INoxPlugIn&, std::int32_t), (override));
    MOCK_METHOD(void, parameterTouched, (INoxPlugIn&, std::int32_t), (override));
    MOCK_METHOD(void, parameterReleased, (INoxPlugIn&, std::int32_t), (override));
    MOCK_METHOD(void, parameterChanged, (INoxPlugIn&, std::int32_t, double, std::uint8_t),
                (override));
    MOCK_METHOD(void, parametersChanged,
                (INoxPlugIn&, std::int32_t, const std::int32_t*, const double*, std::uint8_t),
                (override));
};

/// The one to use in most tests: calls without an expectation are fine.
class NiceEnvironment : public ::testing::NiceMock<MockEnvironment> {
public:
    NiceEnvironment();
    ~NiceEnvironment() override;
};
