// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the params command prints.

#pragma once

#include "plugin-model/IQMParameterSet.h"
#include "tools/brolt-host/TextTable.h"

/// The display text of a value with its unit, or without where the parameter has no text with unit.
/// [any thread]
std::string displayText(const QM::IQMParameterSet& parameters, std::int32_t index, double value);

/// For people: one row a parameter, each value as it is displayed. [any thread]
std::vector<TextRow> parameterRows(const QM::IQMParameterSet& parameters);

/// For programs: plain numbers and texts in columns of their own, the names of switch values and
/// their display texts separated by bars. [any thread]
std::vector<TextRow> parameterData(const QM::IQMParameterSet& parameters);
