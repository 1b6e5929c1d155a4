// SPDX-License-Identifier: GPL-3.0-or-later
// What the host hands to every plug-in: its name, and nothing else that a plug-in could use.
#pragma once

#include "brolt/library/tests/support/HostObject.h"

#include <pluginterfaces/vst/ivsthostapplication.h>

/// With more interfaces, for hosts that offer more.
template <typename... More>
class HostContextWith : public HostObject<Vst::IHostApplication, More...> {
public:
    Steinberg::tresult PLUGIN_API getName(Vst::String128 name) override {
        return VST3::StringConvert::convert("Test host", name) ? Steinberg::kResultOk
                                                               : Steinberg::kResultFalse;
    }

    /// Has no messages and no attribute lists to give away.
    Steinberg::tresult PLUGIN_API createInstance(Steinberg::TUID, Steinberg::TUID,
                                                 void** object) override {
        *object = nullptr;
        return Steinberg::kNoInterface;
    }
};

using HostContext = HostContextWith<>;
