// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditText.h"

#include "plugin-model/FourCharCode.h"
#include "plugin-model/NumberText.h"

namespace {

/// Parameters are published under their indices.
std::string idText(Steinberg::Vst::ParamID id, const QM::IQMParameterSet& parameters) {
    if (id >= static_cast<Steinberg::Vst::ParamID>(parameters.parameterCount()))
        return std::to_string(id);
    return fourCharText(parameters.idOfIndex(static_cast<std::int32_t>(id)));
}

} // namespace

std::string editText(const Vst3Edit& edit, const QM::IQMParameterSet& parameters) {
    const std::string id = idText(edit.id, parameters);
    switch (edit.kind) {
    case Vst3Edit::Kind::begin:
        return "begin " + id;
    case Vst3Edit::Kind::end:
        return "end " + id;
    default:
        return "perform " + id + " " + QM::numberText(edit.value);
    }
}
