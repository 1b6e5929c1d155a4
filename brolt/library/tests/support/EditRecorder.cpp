// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/EditRecorder.h"

#include <sstream>

using Steinberg::tresult;

tresult PLUGIN_API EditRecorder::beginEdit(Vst::ParamID id) {
    lines.push_back("begin " + std::to_string(id));
    return Steinberg::kResultOk;
}

tresult PLUGIN_API EditRecorder::performEdit(Vst::ParamID id, Vst::ParamValue value) {
    std::ostringstream line; // six digits
    line << "perform " << id << ' ' << value;
    lines.push_back(line.str());
    return Steinberg::kResultOk;
}

tresult PLUGIN_API EditRecorder::endEdit(Vst::ParamID id) {
    lines.push_back("end " + std::to_string(id));
    return Steinberg::kResultOk;
}

tresult PLUGIN_API EditRecorder::restartComponent(Steinberg::int32 flags) {
    lines.push_back("restart " + std::to_string(flags));
    return Steinberg::kResultOk;
}
