// SPDX-License-Identifier: GPL-3.0-or-later
// A real instance in a real environment, as an adapter has it.
#pragma once

#include "QMShell/hosting/HostedInstance.h"
#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/INoxPlugIn.h"

#include <mutex>

class HostedPlugIn {
public:
    HostedPlugIn() {
        environment.registerTypeGroup(group);
        setChannels(2);
    }

    void setChannels(std::int32_t channels) {
        const std::scoped_lock lock(environment.controlLock());
        hosted.matchChannels(channels);
    }

    void drop() {
        const std::scoped_lock lock(environment.controlLock());
        hosted.drop();
    }

    [[nodiscard]] INoxPlugIn* get() const { return hosted.get(); }

    NoxPlugInEnvironment environment;

private:
    QMShellPlugInProcessingHost host{nullptr};
    QMBrolt_PlugInTypeGroup group{&environment};
    HostedInstance hosted{host, group};
};
