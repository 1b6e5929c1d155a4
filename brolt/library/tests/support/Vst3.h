// SPDX-License-Identifier: GPL-3.0-or-later
// The plug-in interface as a host sees it, and texts between it and the tests.
#pragma once

#include <pluginterfaces/base/ftypes.h>
#include <pluginterfaces/base/funknown.h>
#include <pluginterfaces/base/smartpointer.h>
#include <pluginterfaces/vst/ivstaudioprocessor.h>
#include <pluginterfaces/vst/ivstcomponent.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>
#include <pluginterfaces/vst/vsttypes.h>
#include <public.sdk/source/vst/utility/stringconvert.h>

#include <string>

namespace Vst = Steinberg::Vst;

/// UTF-8 of the interface's text.
inline std::string textOf(const Vst::TChar* text) {
    return VST3::StringConvert::convert(text);
}

/// A UTF-8 text as the interface takes it. Keep it while the interface reads it.
inline std::u16string wideTextOf(const std::string& text) {
    return VST3::StringConvert::convert(text);
}
