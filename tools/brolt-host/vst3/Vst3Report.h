// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the info command prints of a VST3 bundle: everything that a workstation learns of it before
// the first block.

#pragma once

#include "tools/brolt-host/vst3/Vst3Module.h"

#include <pluginterfaces/vst/ivsteditcontroller.h>

#include <string>

/// Factory, classes, and of an instance the buses, latency, tail and parameters. Throws HostError
/// when the plug-in refuses. [message thread]
std::string vst3Report(Vst3Module& module);

/// The set flags of ParameterInfo in words, "-" when there are none. [any thread]
std::string parameterFlagsText(Steinberg::int32 flags);

/// The set flags of PFactoryInfo, in the same way. [any thread]
std::string factoryFlagsText(Steinberg::int32 flags);
