// SPDX-License-Identifier: GPL-3.0-or-later
// Parameters of the VST3 plug-in.

#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "QMShell/vst3/QMVstParameter.h"
#include "plugin-model/INoxPlugIn.h"

#include <cmath>

using namespace Steinberg;
using namespace Steinberg::Vst;

void QMShellVST3::publishParameters() {
    INoxPlugIn& instance = *hosted.get();
    parameters.removeAll();
    for (int32 index = 0; index < instance.parameterCount(); ++index) {
        auto* const parameter = new QMVstParameter(instance, index, product.publishesIndices);
        parameters.addParameter(parameter); // takes it over
        parameter->refresh();
    }
    instance.parametersPublished();
}

int32 QMShellVST3::indexOf(ParamID id) const {
    const INoxPlugIn* const instance = hosted.get();
    if (instance == nullptr)
        return -1;
    const int32 index = instance->indexOfID(id);
    if (index >= 0)
        return index;
    return id < static_cast<ParamID>(instance->parameterCount()) ? static_cast<int32>(id) : -1;
}

QMVstParameter* QMShellVST3::parameterAt(int32 index) const {
    return static_cast<QMVstParameter*>(parameters.getParameterByIndex(index));
}

Parameter* QMShellVST3::getParameterObject(ParamID id) {
    const int32 index = indexOf(id);
    return index < 0 ? nullptr : parameterAt(index);
}

void QMShellVST3::setPlainValue(int32 index, double plain) {
    hosted.get()->setParameterValue(index, plain);
    if (QMVstParameter* const parameter = parameterAt(index))
        parameter->refresh();
}

void QMShellVST3::refreshParameters() {
    for (int32 index = 0; index < parameters.getParameterCount(); ++index)
        parameterAt(index)->refresh();
}

int32 PLUGIN_API QMShellVST3::getParameterCount() {
    return guarded("QMShellVST3::getParameterCount", int32{0},
                   [&] { return SingleComponentEffect::getParameterCount(); });
}

tresult PLUGIN_API QMShellVST3::getParameterInfo(int32 index, ParameterInfo& info) {
    return guarded("QMShellVST3::getParameterInfo", failed,
                   [&] { return SingleComponentEffect::getParameterInfo(index, info); });
}

tresult PLUGIN_API QMShellVST3::getParamStringByValue(ParamID id, ParamValue normalised,
                                                      String128 text) {
    if (text == nullptr)
        return kInvalidArgument;
    return guarded("QMShellVST3::getParamStringByValue", failed, [&] {
        return SingleComponentEffect::getParamStringByValue(id, normalised, text);
    });
}

tresult PLUGIN_API QMShellVST3::getParamValueByString(ParamID id, TChar* text,
                                                      ParamValue& normalised) {
    if (text == nullptr)
        return kInvalidArgument;
    return guarded("QMShellVST3::getParamValueByString", failed, [&] {
        return SingleComponentEffect::getParamValueByString(id, text, normalised);
    });
}

ParamValue PLUGIN_API QMShellVST3::normalizedParamToPlain(ParamID id, ParamValue normalised) {
    return guarded("QMShellVST3::normalizedParamToPlain", 0.0,
                   [&] { return SingleComponentEffect::normalizedParamToPlain(id, normalised); });
}

ParamValue PLUGIN_API QMShellVST3::plainParamToNormalized(ParamID id, ParamValue plain) {
    return guarded("QMShellVST3::plainParamToNormalized", 0.0,
                   [&] { return SingleComponentEffect::plainParamToNormalized(id, plain); });
}

ParamValue PLUGIN_API QMShellVST3::getParamNormalized(ParamID id) {
    return guarded("QMShellVST3::getParamNormalized", 0.0, [&] {
        const int32 index = indexOf(id);
        return index < 0 ? 0.0 : hosted.get()->normalisedValue(index);
    });
}

tresult PLUGIN_API QMShellVST3::setParamNormalized(ParamID id, ParamValue normalised) {
    return guarded("QMShellVST3::setParamNormalized", failed, [&] {
        const int32 index = indexOf(id);
        // The model would take what is no number for the smallest value.
        if (index < 0 || std::isnan(normalised))
            return kResultFalse;
        setPlainValue(index, hosted.get()->normalisedToPlain(index, normalised));
        return kResultOk;
    });
}
