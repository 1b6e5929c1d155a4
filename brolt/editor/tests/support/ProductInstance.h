// SPDX-License-Identifier: GPL-3.0-or-later
// An instance of the product, mono or stereo, in a real environment. It has no processor: what its
// meters get is what a test puts there.
#pragma once

#include "widgets/ui/tests/support/BroltInstance.h"

class ProductInstance {
public:
    explicit ProductInstance(std::int32_t channels)
        : plugIn(*group.typeOfIndex(channels - 1), nullptr, &environment) {}

    [[nodiscard]] INoxPlugIn& get() { return plugIn; }

    /// Four words of the oscillators, then three of each channel.
    [[nodiscard]] std::array<float, 10>& analysis() { return plugIn.analysis; }

    [[nodiscard]] std::int32_t index(FourCharCode id) const { return plugIn.indexOfID(id); }

    [[nodiscard]] double value(FourCharCode id) {
        const std::scoped_lock lock(environment.controlLock());
        return plugIn.parameterValue(index(id));
    }

    /// As a host that automates.
    void set(FourCharCode id, double value) {
        const std::scoped_lock lock(environment.controlLock());
        plugIn.setParameterValue(index(id), value);
    }

    void setSampleRate(double rate) {
        const std::scoped_lock lock(environment.controlLock());
        plugIn.setSampleRate(&rate);
    }

private:
    NoxPlugInEnvironment environment;
    QMBrolt_PlugInTypeGroup group{&environment};
    MeteredPlugIn plugIn;
};
