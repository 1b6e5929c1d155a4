// SPDX-License-Identifier: GPL-3.0-or-later
//
// The product as a host sees it before there is any instance: an environment with the product's
// type group registered in it.

#pragma once

#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/INoxPlugInType.h"

class ProductModel {
public:
    ProductModel();

    NoxPlugInEnvironment& environment() { return environment_; }

    INoxPlugInTypeGroup& group() { return group_; }

    /// The type for 1 or 2 channels.
    INoxPlugInType& typeForChannels(int channels);

    /// Both types describe the same parameters.
    const QM::IQMParameterSet& parameters() { return *typeForChannels(1).parameterSet(); }

private:
    NoxPlugInEnvironment environment_;
    QMBrolt_PlugInTypeGroup group_;
};
