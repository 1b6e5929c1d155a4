// SPDX-License-Identifier: GPL-3.0-or-later
// A real instance in a real environment, used as host adapters use it: with the control lock held.
#pragma once

#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "brolt/model/QMBrolt_PlugIn.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInType.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <mutex>

/// Stereo, without a processor: what its meters get is what a test puts here.
class MeteredPlugIn final : public QMBrolt_PlugIn {
public:
    using QMBrolt_PlugIn::QMBrolt_PlugIn;

    /// Four words of the oscillators, then envelope, mean square and peak of each channel.
    std::array<float, 10> analysis{};

    void fetchAnalysis(Packet& packet) override {
        std::memcpy(packet.data, analysis.data(),
                    std::min<std::size_t>(packet.length, sizeof analysis));
    }
};

class BroltInstance {
public:
    [[nodiscard]] INoxPlugIn& get() { return *plugIn; }

    [[nodiscard]] MeteredPlugIn& metered() { return *plugIn; }

    [[nodiscard]] NoxPlugInEnvironment& environment() { return environment_; }

    [[nodiscard]] std::int32_t index(const char (&id)[5]) const {
        return plugIn->indexOfID(fourCharCode(id));
    }

    [[nodiscard]] double value(const char (&id)[5]) {
        const std::scoped_lock lock(environment_.controlLock());
        return plugIn->parameterValue(index(id));
    }

    void set(const char (&id)[5], double value) {
        const std::scoped_lock lock(environment_.controlLock());
        plugIn->setParameterValue(index(id), value);
    }

    [[nodiscard]] bool isTouched(const char (&id)[5]) { return plugIn->isTouched(index(id)); }

    /// As a host that removes the plug-in.
    void remove() {
        const std::scoped_lock lock(environment_.controlLock());
        plugIn.reset();
    }

private:
    NoxPlugInEnvironment environment_;
    QMBrolt_PlugInTypeGroup group{&environment_};
    std::unique_ptr<MeteredPlugIn> plugIn =
        std::make_unique<MeteredPlugIn>(*group.typeOfIndex(1), nullptr, &environment_);
};
