// SPDX-License-Identifier: GPL-3.0-or-later
// The product's two types: mono and stereo.
#pragma once

#include "plugin-model/NoxPlugInType.h"

class QMBrolt_PlugInType : public NoxPlugInType {
public:
    /// Code 'BLT1' makes the mono type, any other the stereo type.
    QMBrolt_PlugInType(INoxPlugInTypeGroup& group, INoxPlugInEnvironment* environment,
                       FourCharCode code);

    std::unique_ptr<INoxPlugIn> createInstance() override;
};
