// SPDX-License-Identifier: GPL-3.0-or-later
// The product's identity in numbers and texts that more than one place needs.
#pragma once

#include "plugin-model/FourCharCode.h"

namespace QMBrolt {

constexpr FourCharCode manufacturerCode = fourCharCode("QML ");
constexpr FourCharCode productCode = fourCharCode("BRLT");
constexpr FourCharCode monoTypeCode = fourCharCode("BLT1");
constexpr FourCharCode stereoTypeCode = fourCharCode("BLT2");
/// The VST 2 form's identifier; hosts know saved VST 2 states by it.
constexpr FourCharCode vst2UniqueId = fourCharCode("QMbl");
constexpr FourCharCode bypassParameterID = fourCharCode("mbyp");

/// Index of a type in the group; the type's own (stored) index is one more.
constexpr int monoTypeIndex = 0;
constexpr int stereoTypeIndex = 1;

constexpr const char* versionText = "4.0.2.157";

} // namespace QMBrolt
