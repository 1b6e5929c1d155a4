// SPDX-License-Identifier: GPL-3.0-or-later
// An environment that records what instances tell it.
#pragma once

#include "plugin-model/INoxPlugInEnvironment.h"

#include <gmock/gmock.h>

class MockEnvironment : public INoxPlugInEnvironment {
public:
    NoxHostDescription& hostDescription() override { return description; }

    MOCK_METHOD(void, setHostDescription, (const NoxHostDescription&), (override));
    MOCK_METHOD(void, getTimeInfo, (NoxTimeInfo&), (override));
    MOCK_METHOD(void, setPosition, (std::uint64_t), (override));
    MOCK_METHOD(void, setValueE, (std::uint64_t), (override));
    MOCK_METHOD(void, setValueF, (std::uint64_t), (override));
    MOCK_METHOD(void, setValueG, (std::uint64_t), (override));
    MOCK_METHOD(void, setValuesFG, (std::uint64_t, std::uint64_t), (override));
    MOCK_METHOD(void, setTempo, (double), (override));
    MOCK_METHOD(void, setTimeSignature, (std::uint32_t, std::uint32_t), (override));
    MOCK_METHOD(void, setTransportFlag, (std::uint32_t, bool), (override));
    MOCK_METHOD(std::int32_t, registerTypeGroup, (INoxPlugInTypeGroup&), (override));
    MOCK_METHOD(INoxPlugInType*, findType, (FourCharCode, FourCharCode), (override));
    MOCK_METHOD(std::uint32_t, typeCount, (), (const, override));
    MOCK_METHOD(INoxPlugInType*, typeAt, (std::uint32_t), (const, override));
    MOCK_METHOD(void, addListener, (NoxParameterHandler&), (override));
    MOCK_METHOD(void, removeListener, (NoxParameterHandler&), (override));
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
    MOCK_METHOD(std::uint32_t, getValue, (std::uint32_t), (const, override));
    MOCK_METHOD(void, eraseValue, (std::uint32_t), (override));
    MOCK_METHOD(void, setValue, (std::uint32_t, std::uint32_t), (override));

private:
    NoxHostDescription description;
};
