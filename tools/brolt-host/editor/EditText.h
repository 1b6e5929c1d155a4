// SPDX-License-Identifier: GPL-3.0-or-later
//
// Edits as --print-edits tells them.

#pragma once

#include "plugin-model/IQMParameterSet.h"
#include "tools/brolt-host/vst3/Vst3Edit.h"

#include <string>

/// "begin ID", "perform ID VALUE" or "end ID". ID is the parameter's four-character identifier, or
/// the number under which it was published where that is no index of a parameter. [any thread]
std::string editText(const Vst3Edit& edit, const QM::IQMParameterSet& parameters);
