// SPDX-License-Identifier: GPL-3.0-or-later
// The listener through which the environment tells interested parties (editors, MIDI control, host
// adapters) about one plug-in instance. Calls come on whatever thread makes the change, never on
// the audio thread.
#pragma once

#include <cstdint>

class INoxPlugIn;

class NoxParameterHandler {
public:
    /// The instance it listens to; also the key under which the environment finds it.
    explicit NoxParameterHandler(const INoxPlugIn* plugInToHear)
        : plugIn_(plugInToHear) {}

    virtual ~NoxParameterHandler() = default;
    NoxParameterHandler(const NoxParameterHandler&) = delete;
    NoxParameterHandler& operator=(const NoxParameterHandler&) = delete;

    [[nodiscard]] const INoxPlugIn* plugIn() const { return plugIn_; }

    virtual void sampleRateChanged(const double* /*rate in Hz*/) {}

    virtual void plugInGoingAway() {}

    virtual void parameterTouched(std::int32_t /*index*/) {}

    virtual void parameterReleased(std::int32_t /*index*/) {}

    /// Value in plain units.
    virtual void parameterChanged(std::int32_t /*index*/, double /*value*/, std::uint8_t /*flag*/) {
    }

    virtual void parametersChanged(std::int32_t /*count*/, const std::int32_t* /*indices*/,
                                   const double* /*values*/, std::uint8_t /*flag*/) {}

    virtual void blockSizeChanged(std::int32_t /*frames*/) {}

private:
    const INoxPlugIn* plugIn_;
};
