// SPDX-License-Identifier: GPL-3.0-or-later
// One parameter of the plug-in as a VST3 host sees it: what it is, its texts, and the way between
// normalised and plain values. All of it is answered by the instance.
#pragma once

// The SDK's controller and component both have a getState; this header gives the controller's
// another name, and has to come before the controller's own.
#include <public.sdk/source/vst/vstsinglecomponenteffect.h>

class INoxPlugIn;

class QMVstParameter final : public Steinberg::Vst::Parameter {
public:
    /// The instance must outlive it. Published under its index or its identifier.
    /// [message thread]
    QMVstParameter(const INoxPlugIn& plugIn, Steinberg::int32 parameterIndex, bool publishIndex);

    /// Takes the instance's current value over. [message thread]
    void refresh();

    /// The value's text, a blank, the unit. [any thread]
    void toString(Steinberg::Vst::ParamValue normalised,
                  Steinberg::Vst::String128 text) const override;
    /// By value name (all but the last, which hosts' sessions never relied on) or as a number with
    /// or without its unit. False, and the value stays, for any other text. [any thread]
    bool fromString(const Steinberg::Vst::TChar* text,
                    Steinberg::Vst::ParamValue& normalised) const override;
    [[nodiscard]] Steinberg::Vst::ParamValue
    toPlain(Steinberg::Vst::ParamValue normalised) const override;
    [[nodiscard]] Steinberg::Vst::ParamValue
    toNormalized(Steinberg::Vst::ParamValue plain) const override;

    OBJ_METHODS(QMVstParameter, Steinberg::Vst::Parameter)

private:
    void describe(bool publishIndex);

    const INoxPlugIn& instance;
    Steinberg::int32 index;
};
