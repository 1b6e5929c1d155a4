// SPDX-License-Identifier: GPL-3.0-or-later
//
// One report of a plug-in's edit controller: the user takes hold of a control, moves it, lets go.

#pragma once

#include <pluginterfaces/vst/vsttypes.h>

struct Vst3Edit {
    enum class Kind { begin, perform, end };

    Kind kind;
    Steinberg::Vst::ParamID id;
    Steinberg::Vst::ParamValue value; ///< normalised; of a perform alone

    bool operator==(const Vst3Edit&) const = default;
};
