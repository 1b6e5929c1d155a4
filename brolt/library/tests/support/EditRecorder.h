// SPDX-License-Identifier: GPL-3.0-or-later
// A host's component handler that keeps what it is told, each call as a line: "begin 14",
// "perform 14 0.625", "end 14", "restart 3".
#pragma once

#include "brolt/library/tests/support/HostObject.h"

#include <string>
#include <vector>

class EditRecorder : public HostObject<Vst::IComponentHandler> {
public:
    std::vector<std::string> lines;

    Steinberg::tresult PLUGIN_API beginEdit(Vst::ParamID id) override;
    Steinberg::tresult PLUGIN_API performEdit(Vst::ParamID id, Vst::ParamValue value) override;
    Steinberg::tresult PLUGIN_API endEdit(Vst::ParamID id) override;
    Steinberg::tresult PLUGIN_API restartComponent(Steinberg::int32 flags) override;
};
