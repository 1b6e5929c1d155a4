// SPDX-License-Identifier: GPL-3.0-or-later
//
// What "preset show" prints.

#pragma once

#include "plugin-model/IQMParameterSet.h"
#include "tools/brolt-host/state/StateFile.h"

#include <string>

/// The head of the record, its values with names and units, and its extension document as JSON.
/// Identifiers that are no parameter's are shown with their bare numbers. [any thread]
std::string presetReport(const StateFile& file, const QM::IQMParameterSet& parameters);
