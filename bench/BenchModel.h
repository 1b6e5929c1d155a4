// SPDX-License-Identifier: GPL-3.0-or-later
//
// An instance of the product among its surroundings, for the benchmarks of the control side.

#pragma once

#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "brolt/model/QMBrolt_ProductCodes.h"
#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInType.h"

#include <memory>

/// An environment with a host and the product's types.
struct BenchModel {
    NoxPlugInEnvironment environment;
    QMShellPlugInProcessingHost host{&environment};
    QMBrolt_PlugInTypeGroup group{&environment};
    INoxPlugInType& stereo = *group.typeOfIndex(QMBrolt::stereoTypeIndex);

    /// To be taken off the host before it goes.
    std::unique_ptr<INoxPlugIn> newInstance() {
        auto instance = stereo.createAndRecordInstance();
        instance->createProcessingState();
        instance->setProcessingHost(&host);
        return instance;
    }
};
