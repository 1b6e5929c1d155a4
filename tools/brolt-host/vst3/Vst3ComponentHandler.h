// SPDX-License-Identifier: GPL-3.0-or-later
//
// Takes what a plug-in's edit controller reports to its host. A workstation would record edits as
// automation and read again what has changed; this host keeps nothing of either kind.

#pragma once

#include <pluginterfaces/base/funknownimpl.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>

/// Must outlive the controller that it was handed to: nobody owns it. [message thread]
class Vst3ComponentHandler : public Steinberg::U::ImplementsNonDestroyable<
                                 Steinberg::U::Directly<Steinberg::Vst::IComponentHandler>> {
public:
    Steinberg::tresult PLUGIN_API beginEdit(Steinberg::Vst::ParamID) override {
        return Steinberg::kResultOk;
    }

    Steinberg::tresult PLUGIN_API performEdit(Steinberg::Vst::ParamID,
                                              Steinberg::Vst::ParamValue) override {
        return Steinberg::kResultOk;
    }

    Steinberg::tresult PLUGIN_API endEdit(Steinberg::Vst::ParamID) override {
        return Steinberg::kResultOk;
    }

    Steinberg::tresult PLUGIN_API restartComponent(Steinberg::int32) override {
        return Steinberg::kResultOk;
    }
};
