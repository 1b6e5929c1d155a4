// SPDX-License-Identifier: GPL-3.0-or-later
// What the editor does to the instance, and asks of it.

#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "QMShell/vst3/QMVST3Editor.h"
#include "QMShell/vst3/QMVstParameter.h"
#include "plugin-model/INoxPlugIn.h"

#include <cmath>

using namespace Steinberg;
using namespace Steinberg::Vst;

IPlugView* PLUGIN_API QMShellVST3::createView(FIDString name) {
    if (name == nullptr || !FIDStringsEqual(name, ViewType::kEditor) || !product.createEditorUI)
        return nullptr;
    return contained(
        "QMShellVST3::createView", static_cast<IPlugView*>(nullptr),
        [&]() -> IPlugView* { return new QMVST3Editor(*this, product.createEditorUI); });
}

double QMShellVST3::sampleRate() {
    return guarded("QMShellVST3::sampleRate", 0.0, [&] { return processSetup.sampleRate; });
}

int32 QMShellVST3::indexOfParameter(ParamID id) {
    return guarded("QMShellVST3::indexOfParameter", int32{-1}, [&] { return indexOf(id); });
}

std::optional<QMShellVST3::EditedParameter> QMShellVST3::setFromEditor(ParamID id, double plain) {
    return guarded("QMShellVST3::setFromEditor", std::optional<EditedParameter>(),
                   [&]() -> std::optional<EditedParameter> {
                       const int32 index = indexOf(id);
                       if (index < 0 || std::isnan(plain))
                           return std::nullopt;
                       const INoxPlugIn& instance = *hosted.get();
                       const ParamValue normalised = instance.plainToNormalised(index, plain);
                       setPlainValue(index, instance.normalisedToPlain(index, normalised));
                       return EditedParameter{static_cast<ParamID>(index), normalised};
                   });
}
