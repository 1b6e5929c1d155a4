// SPDX-License-Identifier: GPL-3.0-or-later
// An environment that records what instances tell it.
#pragma once

#include "plugin-model/tests/StubEnvironment.h"

#include <gmock/gmock.h>

class MockEnvironment : public StubEnvironment {
public:
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
