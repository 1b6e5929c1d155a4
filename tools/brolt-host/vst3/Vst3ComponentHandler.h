// SPDX-License-Identifier: GPL-3.0-or-later
//
// Takes what a plug-in's edit controller reports to its host. A workstation would record edits as
// automation and read again what has changed; this host hands the edits to whoever asked for them.

#pragma once

#include "tools/brolt-host/vst3/Vst3Edit.h"

#include <pluginterfaces/base/funknownimpl.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>

#include <functional>
#include <utility>

/// Must outlive the controller that it was handed to: nobody owns it. [message thread]
class Vst3ComponentHandler : public Steinberg::U::ImplementsNonDestroyable<
                                 Steinberg::U::Directly<Steinberg::Vst::IComponentHandler>> {
public:
    using Observer = std::function<void(const Vst3Edit&)>;

    /// Called within each report; the empty function for nobody.
    void setObserver(Observer whom) { observer = std::move(whom); }

    Steinberg::tresult PLUGIN_API beginEdit(Steinberg::Vst::ParamID id) override {
        return report({Vst3Edit::Kind::begin, id, 0.0});
    }

    Steinberg::tresult PLUGIN_API performEdit(Steinberg::Vst::ParamID id,
                                              Steinberg::Vst::ParamValue value) override {
        return report({Vst3Edit::Kind::perform, id, value});
    }

    Steinberg::tresult PLUGIN_API endEdit(Steinberg::Vst::ParamID id) override {
        return report({Vst3Edit::Kind::end, id, 0.0});
    }

    Steinberg::tresult PLUGIN_API restartComponent(Steinberg::int32) override {
        return Steinberg::kResultOk;
    }

private:
    Steinberg::tresult report(const Vst3Edit& edit) const {
        if (observer)
            observer(edit);
        return Steinberg::kResultOk;
    }

    Observer observer;
};
