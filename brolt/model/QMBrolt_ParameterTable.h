// SPDX-License-Identifier: GPL-3.0-or-later
// The product's fifteen parameters, their group and the meters of its two types: the one source of
// names, ranges, defaults, units, tapers and display rules.
#pragma once

#include "plugin-model/NoxPlugInParameter.h"

#include <span>

/// In index order: the index is part of saved projects. [any thread]
std::span<const NoxPlugInParameter> QMBrolt_parameters();

/// One group without a name, with the subgroup "Main". [any thread]
std::span<const NoxParameterGroup> QMBrolt_parameterGroups();

/// The meters of the mono (1) or stereo (2) type: one record a channel, then the pitches.
/// [any thread]
std::span<const NoxMeterDescriptor> QMBrolt_meters(std::int32_t typeIndex);
