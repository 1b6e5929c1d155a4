// SPDX-License-Identifier: GPL-3.0-or-later
//
// A class of a VST3 library that processes audio, and whom its instances are made for.

#pragma once

#include <public.sdk/source/vst/hosting/module.h>

struct Vst3EffectClass {
    VST3::Hosting::PluginFactory factory;
    VST3::UID id;
    Steinberg::FUnknown* hostContext; ///< outlives every instance
};
