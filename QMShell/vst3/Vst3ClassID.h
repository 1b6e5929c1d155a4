// SPDX-License-Identifier: GPL-3.0-or-later
// Class identifiers by the convention for plug-ins that also exist as VST 2 plug-ins: a host finds
// by it the class that takes the place of a VST 2 instance in a session.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <string>
#include <string_view>
#include <vector>

/// 32 upper-case hexadecimal digits: "VST", the VST 2 identifier, the first nine characters of the
/// VST 2 effect name in lower case, zeros behind its end. [any thread]
[[nodiscard]] std::string vst3ClassIDText(FourCharCode vst2UniqueId, std::string_view effectName);

/// What tells a host which classes an installed one takes the place of: a JSON document with the
/// class's identifier and those that the earlier VST 2 identifiers give. [any thread]
[[nodiscard]] std::string vst3CompatibilityText(const std::string& classID,
                                                const std::vector<FourCharCode>& earlierVst2Ids,
                                                const std::string& productName);
