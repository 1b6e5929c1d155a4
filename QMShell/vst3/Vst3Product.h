// SPDX-License-Identifier: GPL-3.0-or-later
// What the VST3 adapter has to be told of the product it is the face of. The library fills one and
// keeps it for as long as it is loaded.
#pragma once

#include "plugin-model/FourCharCode.h"
#include "widgets/ui/QMPlugInUIFactory.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class INoxPlugInEnvironment;
class INoxPlugInTypeGroup;

struct Vst3Product {
    std::string version; ///< "4.0.2.157"
    std::string vendorUrl;
    std::string vendorEmail;
    FourCharCode vst2UniqueId = 0;
    /// Identifiers of VST 2 plug-ins that the product takes the place of in sessions.
    std::vector<FourCharCode> earlierVst2Ids;
    /// Whether parameters are published under their indices instead of their identifiers.
    bool publishesIndices = false;
    /// Index 0 of the group is the mono type, index 1 the stereo type. The environment may be null.
    std::function<std::unique_ptr<INoxPlugInTypeGroup>(INoxPlugInEnvironment*)> createTypeGroup;
    /// Makes the editors of instances. Without it the plug-in has none.
    QMPlugInUIFactory createEditorUI;
};
