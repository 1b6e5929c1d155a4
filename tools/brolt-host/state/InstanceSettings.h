// SPDX-License-Identifier: GPL-3.0-or-later
//
// The settings a render starts with: read from files, put into an instance, saved to files.

#pragma once

#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/state/StateOptions.h"

#include <memory>
#include <string>
#include <vector>

/// The records of --state and --preset, in the order in which they are applied. Throws HostError
/// for a file that cannot be read or holds settings of another product. [message thread]
std::vector<QMGenericPreset> readRecords(const RenderStateOptions& options);

/// The settings of --set. Says on standard error which values were outside their range. Throws
/// HostError. [message thread]
std::vector<ParameterSetting> readSettings(const std::vector<std::string>& assignments);

/// An instance with the plan's records applied and settings made, without a processing host.
/// [message thread]
std::unique_ptr<INoxPlugIn> createInstance(ProductModel& product, int channels,
                                           const RenderPlan& plan);

/// Writes the files of --save-state and --save-preset. Throws HostError. [message thread]
void saveSettings(const RenderPlan& plan, const RenderStateOptions& options);
