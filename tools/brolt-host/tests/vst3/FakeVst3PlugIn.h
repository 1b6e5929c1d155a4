// SPDX-License-Identifier: GPL-3.0-or-later
//
// A VST3 plug-in inside the test: it writes down what its host does, refuses what it is told to
// refuse, and may be one object or two.

#pragma once

#include "tools/brolt-host/vst3/Vst3EffectClass.h"

#include <pluginterfaces/gui/iplugview.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// One point of a block's parameter changes.
struct FakeChange {
    Steinberg::Vst::ParamID id;
    Steinberg::int32 frame;
    double value;

    bool operator==(const FakeChange&) const = default;
};

/// What one process call brought.
struct FakeBlock {
    Steinberg::int32 frames;
    Steinberg::int32 mode;
    Steinberg::int32 channels;
    Steinberg::int64 position;
    double tempo;
    std::vector<FakeChange> changes;
};

/// Of its fifteen parameters the one with index i has the ID 100 + i, and 0 to 100 in display units
/// is its range. Its audio is the input's half.
struct FakeVst3PlugIn {
    // To be told.
    bool isSeparate = false;  ///< the edit controller is an object of its own
    bool hasProcessor = true; ///< the component processes audio
    int inputBuses = 1;
    std::string refused;                             ///< the operation that answers false
    std::function<Steinberg::IPlugView*()> makeView; ///< the answer of createView; else null

    // To be asked.
    std::vector<std::string> calls; ///< names of the operations and what matters of their arguments
    std::vector<FakeBlock> blocks;
    std::vector<std::byte> state; ///< of the last setState
    Steinberg::FUnknown* context = nullptr;
    Steinberg::Vst::IComponentHandler* handler = nullptr;
    int livingObjects = 0;

    /// The fake must outlive what is made of it.
    Vst3EffectClass effectClass();

    /// Notes a call and answers it.
    Steinberg::tresult answer(const std::string& operation, const std::string& arguments = {});
};
