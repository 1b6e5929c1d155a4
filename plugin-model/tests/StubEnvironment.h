// SPDX-License-Identifier: GPL-3.0-or-later
// An environment that does nothing: what tests' environments derive from, so that each overrides
// the operations it is about and no more.
#pragma once

#include "plugin-model/INoxPlugInEnvironment.h"

class StubEnvironment : public INoxPlugInEnvironment {
public:
    std::recursive_mutex& controlLock() override { return control; }

    NoxHostDescription& hostDescription() override { return description; }

    void setHostDescription(const NoxHostDescription& newOne) override { description = newOne; }

    void getTimeInfo(NoxTimeInfo&) override {}

    void setPosition(std::uint64_t) override {}

    void setValueE(std::uint64_t) override {}

    void setValueF(std::uint64_t) override {}

    void setValueG(std::uint64_t) override {}

    void setValuesFG(std::uint64_t, std::uint64_t) override {}

    void setTempo(double) override {}

    void setTimeSignature(std::uint32_t, std::uint32_t) override {}

    void setTransportFlag(std::uint32_t, bool) override {}

    std::int32_t registerTypeGroup(INoxPlugInTypeGroup&) override { return 0; }

    INoxPlugInType* findType(FourCharCode, FourCharCode) override { return nullptr; }

    [[nodiscard]] std::uint32_t typeCount() const override { return 0; }

    [[nodiscard]] INoxPlugInType* typeAt(std::uint32_t) const override { return nullptr; }

    void addListener(NoxParameterHandler&) override {}

    void removeListener(NoxParameterHandler&) override {}

    void plugInGoingAway(INoxPlugIn&) override {}

    void sampleRateSet(INoxPlugIn&, const double*) override {}

    void blockSizeSet(INoxPlugIn&, std::int32_t) override {}

    void parameterTouched(INoxPlugIn&, std::int32_t) override {}

    void parameterReleased(INoxPlugIn&, std::int32_t) override {}

    void parameterChanged(INoxPlugIn&, std::int32_t, double, std::uint8_t) override {}

    void parametersChanged(INoxPlugIn&, std::int32_t, const std::int32_t*, const double*,
                           std::uint8_t) override {}

    [[nodiscard]] std::uint32_t getValue(std::uint32_t) const override { return 0; }

    void eraseValue(std::uint32_t) override {}

    void setValue(std::uint32_t, std::uint32_t) override {}

private:
    std::recursive_mutex control;
    NoxHostDescription description;
};
