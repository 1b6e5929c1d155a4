// SPDX-License-Identifier: GPL-3.0-or-later
//
// An open editor from its first to its last moment: an instance that hears audio, its view in a
// window, and the loop that keeps both alive.

#pragma once

#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/editor/EditorOptions.h"
#include "tools/brolt-host/editor/EditorScreen.h"
#include "tools/brolt-host/editor/LoopedInput.h"
#include "tools/brolt-host/vst3/Vst3ComponentHandler.h"
#include "tools/brolt-host/vst3/Vst3EffectClass.h"

#include <string>

/// Whose editor is shown, where, and how the user knows it.
struct EditorPlace {
    EditorScreen& screen;
    HostMessages& messages;
    Vst3EffectClass effect;
    std::string title;
};

/// Returns when the user has closed the window, or the options' seconds are over. The observer is
/// told of every edit. Throws HostError when the plug-in or the audio file refuses, and
/// Interrupted. [message thread]
void runEditorSession(const EditorPlace& place, const ViewOptions& options, const RenderPlan& plan,
                      LoopedInput input, Vst3ComponentHandler::Observer observer);
